#pragma once

// Engine: Runtime/ImageWrapper/Public/IImageWrapper.h (module ImageWrapper). The JPEG writer reads quality 0
// as its default (85) and 1 as uncompressed, and raises 2-39 to 40.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/ImageWrapper/IImageWrapper
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/ImageWrapper/IImageWrapper/SetRaw

#include "CoreMinimal.h"

enum class EImageFormat : int8
{
    Invalid = -1,
    PNG = 0,
    JPEG,
};

enum class ERGBFormat : int8
{
    Invalid = -1,
    RGBA = 0,
    BGRA = 1,
    Gray = 2,
};

class IImageWrapper
{
public:
    virtual ~IImageWrapper();

    virtual bool SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight,
                        const ERGBFormat InFormat, const int32 InBitDepth, const int32 InBytesPerRow = 0) = 0;
    virtual TArray64<uint8> GetCompressed(int32 Quality = 0) = 0;
};
