#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

#include "Core/Ports/IOrvImageWrapper.h"

class IImageWrapper;

namespace OrvWebBridge
{
    /** @brief IOrvImageWrapper over one JPEG IImageWrapper, taking 8-bit BGRA pixels. */
    class FOrvUnrealImageWrapper final : public IOrvImageWrapper
    {
    public:
        explicit FOrvUnrealImageWrapper(TSharedRef<IImageWrapper> InWrapper) : Wrapper(MoveTemp(InWrapper)) {}

        virtual bool SetRaw(const void* Data, std::int64_t SizeInBytes, std::int32_t Width,
                            std::int32_t Height) override;
        virtual bool KeepsAlpha() const override { return false; }
        virtual std::span<const std::uint8_t> GetCompressed(std::int32_t Quality) override;

        /** The quality handed to the engine's JPEG encoder for a requested quality of 1-100. */
        static int32 ToEngineJpegQuality(int32 Quality);

    private:
        TSharedRef<IImageWrapper> Wrapper;
        TArray64<uint8> Compressed;
    };

    /** @brief IOrvImageWrapperModule over the ImageWrapper module. */
    class FOrvUnrealImageWrapperModule final : public IOrvImageWrapperModule
    {
    public:
        virtual std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() override;
    };
} // namespace OrvWebBridge
