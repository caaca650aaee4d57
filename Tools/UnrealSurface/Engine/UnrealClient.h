#pragma once

// Engine: Runtime/Engine/Public/UnrealClient.h (module Engine).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FRenderTarget/ReadPixels
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Engine/FViewport
//       scheme)

#include "CoreMinimal.h"

// From the RHI module, reached through this header. [unconf: their RHI header]
enum ERangeCompressionMode
{
    RCM_UNorm,
    RCM_SNorm,
    RCM_MinMaxNorm,
    RCM_MinMax,
};

enum ECubeFace : uint32
{
    CubeFace_PosX = 0,
    CubeFace_MAX = 6,
};

struct FReadSurfaceDataFlags
{
    FReadSurfaceDataFlags(ERangeCompressionMode InCompressionMode = RCM_UNorm,
                          ECubeFace InCubeFace = CubeFace_MAX);
};

class FRenderTarget
{
public:
    virtual ~FRenderTarget();
    virtual FIntPoint GetSizeXY() const = 0;
    /** Blocks while rendering commands flush; the pixels are B, G, R, A bytes. */
    virtual bool ReadPixels(TArray<FColor>& OutImageData,
                            FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX),
                            FIntRect InSrcRect = FIntRect(0, 0, 0, 0));
};

class FViewport : public FRenderTarget
{
public:
    virtual FIntPoint GetSizeXY() const override;
};
