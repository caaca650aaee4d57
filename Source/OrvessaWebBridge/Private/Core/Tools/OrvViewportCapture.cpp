#include "Core/Tools/OrvViewportCapture.h"

#include "Core/Common/OrvBase64.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Mcp/OrvMcpHandler.h"

#include <bit>
#include <cstring>
#include <memory>
#include <span>
#include <string>

namespace
{
    constexpr const char* OrvCaptureNoViewport =
        "{\"error\":\"No active editor viewport. Open a Level Editor viewport and try again.\"}";
    constexpr const char* OrvCaptureZeroSize = R"({"error":"Viewport has zero size."})";
    constexpr const char* OrvCaptureReadPixelsFailed = R"({"error":"Viewport->ReadPixels failed."})";
    constexpr const char* OrvCaptureSizeMismatch =
        "{\"error\":\"ReadPixels size mismatch \xE2\x80\x94 got %d pixels, expected %d.\"}";
    constexpr const char* OrvCaptureNoWrapper = R"({"error":"Failed to create JPEG image wrapper."})";
    constexpr const char* OrvCaptureSetRawFailed = R"({"error":"SetRaw failed on JPEG wrapper."})";
    constexpr const char* OrvCaptureEmptyBuffer = R"({"error":"JPEG compression produced empty buffer."})";

    static_assert(sizeof(FOrvColor) == 4, "pixels are read and encoded as packed 32-bit BGRA words");

    // The alpha byte of every pixel to 255, one 32-bit word at a time. memcpy is how the word is read and
    // written without breaking aliasing rules; compilers turn it into plain loads and stores and
    // vectorise the loop.
    void OrvCaptureMakeOpaque(std::vector<FOrvColor>& Pixels)
    {
        constexpr std::uint32_t AlphaMask =
            std::endian::native == std::endian::little ? 0xFF000000u : 0x000000FFu;
        unsigned char* Bytes = reinterpret_cast<unsigned char*>(Pixels.data());
        const std::size_t Count = Pixels.size();
        for (std::size_t Index = 0; Index < Count; ++Index)
        {
            std::uint32_t Word;
            std::memcpy(&Word, Bytes + Index * 4, 4);
            Word |= AlphaMask;
            std::memcpy(Bytes + Index * 4, &Word, 4);
        }
    }

    FOrvMcpContent OrvCaptureError(std::string Text)
    {
        return FOrvMcpHandler::MakeContentText(std::move(Text));
    }
} // namespace

FOrvMcpContent FOrvViewportCapture::Capture(IOrvViewport& Viewport, IOrvImageWrapperModule& Images,
                                            std::int32_t Quality)
{
    if (!Viewport.HasClientViewport())
    {
        return OrvCaptureError(OrvCaptureNoViewport);
    }
    const FOrvIntPoint Size = Viewport.GetViewportSize();
    if (Size.X <= 0 || Size.Y <= 0)
    {
        return OrvCaptureError(OrvCaptureZeroSize);
    }
    // The buffer is kept between captures: after the first frame of a size, reading costs no allocation.
    if (!Viewport.ReadPixels(Pixels))
    {
        return OrvCaptureError(OrvCaptureReadPixelsFailed);
    }
    const std::int64_t Expected = std::int64_t{Size.X} * Size.Y;
    if (static_cast<std::int64_t>(Pixels.size()) != Expected)
    {
        return OrvCaptureError(FOrvStrings::Printf(OrvCaptureSizeMismatch, static_cast<int>(Pixels.size()),
                                                   static_cast<int>(Expected)));
    }
    OrvCaptureMakeOpaque(Pixels);

    const std::unique_ptr<IOrvImageWrapper> Wrapper = Images.CreateJpegWrapper();
    if (!Wrapper)
    {
        return OrvCaptureError(OrvCaptureNoWrapper);
    }
    if (!Wrapper->SetRaw(Pixels.data(), Expected * 4, Size.X, Size.Y))
    {
        return OrvCaptureError(OrvCaptureSetRawFailed);
    }
    const std::span<const std::uint8_t> Compressed = Wrapper->GetCompressed(Quality);
    if (Compressed.empty())
    {
        return OrvCaptureError(OrvCaptureEmptyBuffer);
    }

    // Encoded straight from the encoder's buffer into the text that becomes the block: the JPEG bytes
    // are read once and the Base64 text is moved, never copied.
    std::string Base64;
    Base64.reserve(FOrvBase64::GetEncodedSize(Compressed.size()));
    FOrvBase64::EncodeAppend(Compressed, Base64);
    return FOrvMcpHandler::MakeContentImage(std::move(Base64), "image/jpeg");
}
