#pragma once

#include "Core/Ports/IOrvImageWrapper.h"
#include "Core/Ports/IOrvViewport.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A level viewport whose client, size, read-back success and pixels a test sets. */
    class FOrvFakeViewport : public IOrvViewport
    {
    public:
        bool bHasClientViewport = true;
        FOrvIntPoint Size{4, 2};
        bool bReadSucceeds = true;
        std::vector<FOrvColor> Frame = std::vector<FOrvColor>(8, FOrvColor{10, 20, 30, 0});

        bool HasActiveViewport() const override { return true; }
        std::optional<FOrvViewInfo> GetLevelViewportView() const override { return FOrvViewInfo{}; }
        bool HasClientViewport() const override { return bHasClientViewport; }
        FOrvIntPoint GetViewportSize() const override { return Size; }
        bool ReadPixels(std::vector<FOrvColor>& Out) override
        {
            if (bReadSucceeds)
            {
                Out = Frame;
            }
            return bReadSucceeds;
        }
    };

    /** @brief What the fake JPEG encoder was given. */
    struct FOrvFakeJpegRecord
    {
        std::vector<std::uint8_t> RawBytes;
        std::int64_t RawSize = 0;
        std::int32_t Width = 0;
        std::int32_t Height = 0;
        std::optional<std::int32_t> Quality;
    };

    /**
     * @brief An image wrapper module that fails where a test says and otherwise "compresses" to fixed bytes.
     * Its wrappers keep alpha, like a PNG encoder, so the capture must make the frame opaque itself.
     */
    class FOrvFakeImageWrapperModule : public IOrvImageWrapperModule
    {
    public:
        bool bCreatesWrapper = true;
        bool bSetRawSucceeds = true;
        std::vector<std::uint8_t> Output = {0xFF, 0xD8, 0xFF, 0xE0, 'f', 'a', 'k', 'e', 0xFF, 0xD9};
        FOrvFakeJpegRecord Record;

        std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() override
        {
            return bCreatesWrapper ? std::make_unique<FWrapper>(*this) : nullptr;
        }

    private:
        struct FWrapper : IOrvImageWrapper
        {
            explicit FWrapper(FOrvFakeImageWrapperModule& InModule) : Module(InModule) {}

            bool SetRaw(const void* Data, std::int64_t Size, std::int32_t Width, std::int32_t Height) override
            {
                if (!Module.bSetRawSucceeds)
                {
                    return false;
                }
                const auto* Bytes = static_cast<const std::uint8_t*>(Data);
                Module.Record.RawBytes.assign(Bytes, Bytes + Size);
                Module.Record.RawSize = Size;
                Module.Record.Width = Width;
                Module.Record.Height = Height;
                return true;
            }
            bool KeepsAlpha() const override { return true; }
            std::span<const std::uint8_t> GetCompressed(std::int32_t Quality) override
            {
                Module.Record.Quality = Quality;
                return Module.Output;
            }

            FOrvFakeImageWrapperModule& Module;
        };
    };
} // namespace OrvWebBridge
