#pragma once

#include "Core/Ports/IOrvImageWrapper.h"
#include "Core/Ports/IOrvViewport.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/**
 * @brief A level viewport whose every answer a test sets: client present or not, size, whether
 * ReadPixels succeeds and which pixels it delivers.
 */
class FOrvFakeViewport : public IOrvViewport
{
public:
    bool bHasActiveViewport = true;
    bool bHasClientViewport = true;
    std::optional<FOrvViewInfo> View = FOrvViewInfo{};
    FOrvIntPoint Size{4, 2};
    bool bReadSucceeds = true;
    std::vector<FOrvColor> Frame = std::vector<FOrvColor>(8, FOrvColor{10, 20, 30, 0});

    bool HasActiveViewport() const override { return bHasActiveViewport; }
    std::optional<FOrvViewInfo> GetLevelViewportView() const override { return View; }
    bool HasClientViewport() const override { return bHasClientViewport; }
    FOrvIntPoint GetViewportSize() const override { return Size; }

    bool ReadPixels(std::vector<FOrvColor>& Out) override
    {
        if (!bReadSucceeds)
        {
            return false;
        }
        // As the engine's read-back: the whole surface is copied into the caller's array.
        Out.resize(Frame.size());
        std::memcpy(Out.data(), Frame.data(), Frame.size() * sizeof(FOrvColor));
        return true;
    }
};

/** @brief What the fake JPEG encoder was given, kept by its module so tests can look after the call. */
struct FOrvFakeJpegRecord
{
    std::vector<std::uint8_t> RawBytes;
    std::int64_t RawSize = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::optional<std::int32_t> Quality;
};

/** @brief An image wrapper module whose encoder fails where a test says and otherwise "compresses" to fixed
 * bytes. */
class FOrvFakeImageWrapperModule : public IOrvImageWrapperModule
{
public:
    bool bCreatesWrapper = true;
    bool bSetRawSucceeds = true;
    bool bKeepsAlpha = true; ///< like an encoder of a format with transparency (PNG), unlike JPEG
    std::vector<std::uint8_t> Output = {0xFF, 0xD8, 0xFF, 0xE0, 'f', 'a', 'k', 'e', 0xFF, 0xD9};
    FOrvFakeJpegRecord Record;

    std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() override
    {
        if (!bCreatesWrapper)
        {
            return nullptr;
        }
        return std::make_unique<FWrapper>(*this);
    }

private:
    class FWrapper : public IOrvImageWrapper
    {
    public:
        explicit FWrapper(FOrvFakeImageWrapperModule& InModule) : Module(InModule) {}

        bool SetRaw(const void* Data, std::int64_t SizeInBytes, std::int32_t Width,
                    std::int32_t Height) override
        {
            FOrvFakeJpegRecord& Record = Module.Record;
            const auto* Bytes = static_cast<const std::uint8_t*>(Data);
            Record.RawBytes.assign(Bytes, Bytes + SizeInBytes);
            Record.RawSize = SizeInBytes;
            Record.Width = Width;
            Record.Height = Height;
            return Module.bSetRawSucceeds;
        }

        bool KeepsAlpha() const override { return Module.bKeepsAlpha; }

        std::span<const std::uint8_t> GetCompressed(std::int32_t Quality) override
        {
            Module.Record.Quality = Quality;
            return Module.Output;
        }

    private:
        FOrvFakeImageWrapperModule& Module;
    };
};
