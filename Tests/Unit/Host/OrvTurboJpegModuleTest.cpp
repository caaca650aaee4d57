#include "Host/Editor/OrvTurboJpegModule.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <cstdint>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    /** A BGRA test card: gradients plus a little pseudo-random noise, so quality changes the size. */
    std::vector<std::uint8_t> TestCard(int Width, int Height, std::uint32_t Seed)
    {
        std::vector<std::uint8_t> Pixels(static_cast<std::size_t>(Width) * Height * 4);
        for (std::size_t Index = 0; Index < Pixels.size(); Index += 4)
        {
            Seed = Seed * 1664525u + 1013904223u;
            const std::size_t Pixel = Index / 4;
            Pixels[Index] = static_cast<std::uint8_t>(Pixel % Width);
            Pixels[Index + 1] = static_cast<std::uint8_t>(Pixel / Width);
            Pixels[Index + 2] = static_cast<std::uint8_t>(Seed >> 24);
            Pixels[Index + 3] = 255;
        }
        return Pixels;
    }

    /** Width and height of a JPEG that decodes whole, not just its header; {0, 0} when it does not. */
    std::pair<int, int> DecodedSize(std::span<const std::uint8_t> Jpeg)
    {
        tjhandle Decoder = tjInitDecompress();
        const auto Size = static_cast<unsigned long>(Jpeg.size());
        int Width = 0, Height = 0, Subsampling = 0, Colorspace = 0;
        bool bOk =
            tjDecompressHeader3(Decoder, Jpeg.data(), Size, &Width, &Height, &Subsampling, &Colorspace) == 0;
        std::vector<std::uint8_t> Pixels(bOk ? static_cast<std::size_t>(Width) * Height * 4 : 0);
        bOk = bOk &&
              tjDecompress2(Decoder, Jpeg.data(), Size, Pixels.data(), Width, 0, Height, TJPF_BGRA, 0) == 0;
        tjDestroy(Decoder);
        return bOk ? std::pair{Width, Height} : std::pair{0, 0};
    }

    // The wrapper keeps only a pointer to the pixels: they must outlive it, so never pass a temporary.
    std::unique_ptr<IOrvImageWrapper> Wrap(FOrvTurboJpegModule& Module,
                                           const std::vector<std::uint8_t>& Pixels, int Width, int Height)
    {
        std::unique_ptr<IOrvImageWrapper> Wrapper = Module.CreateJpegWrapper();
        EXPECT_TRUE(Wrapper && Wrapper->SetRaw(Pixels.data(), std::int64_t(Pixels.size()), Width, Height));
        return Wrapper;
    }
    std::unique_ptr<IOrvImageWrapper> Wrap(FOrvTurboJpegModule&, std::vector<std::uint8_t>&&, int,
                                           int) = delete;
} // namespace

TEST(FOrvTurboJpegModuleTest, CompressedOutputDecodesToTheRawSizeAndMismatchedPixelsAreRefused)
{
    FOrvTurboJpegModule Module;
    for (const auto& [Width, Height] : {std::pair{1280, 720}, std::pair{33, 17}})
    {
        const std::vector<std::uint8_t> Pixels = TestCard(Width, Height, 7);
        EXPECT_EQ(DecodedSize(Wrap(Module, Pixels, Width, Height)->GetCompressed(80)),
                  std::pair(Width, Height));
    }
    const std::unique_ptr<IOrvImageWrapper> Wrapper = Module.CreateJpegWrapper();
    const std::vector<std::uint8_t> Pixels = TestCard(8, 8, 1);
    EXPECT_TRUE(Wrapper->GetCompressed(80).empty()) << "nothing to compress yet";
    EXPECT_FALSE(Wrapper->SetRaw(Pixels.data(), 8 * 8 * 4 - 1, 8, 8));
    EXPECT_FALSE(Wrapper->SetRaw(nullptr, 8 * 8 * 4, 8, 8));
    EXPECT_FALSE(Wrapper->SetRaw(Pixels.data(), 0, 0, 8));
    EXPECT_TRUE(Wrapper->GetCompressed(80).empty()) << "a refused SetRaw leaves nothing to compress";
}

TEST(FOrvTurboJpegModuleTest, AskedQualityIsUsedAndLowerQualityIsSmaller)
{
    // Not the engine wrapper's remapping: 10 stays 10.
    EXPECT_EQ(FOrvTurboJpegModule::MapQuality(10), 10);
    EXPECT_EQ(FOrvTurboJpegModule::MapQuality(250), 100);

    FOrvTurboJpegModule Module;
    const std::vector<std::uint8_t> Pixels = TestCard(256, 256, 3);
    const std::unique_ptr<IOrvImageWrapper> Wrapper = Wrap(Module, Pixels, 256, 256);
    const std::size_t Low = Wrapper->GetCompressed(5).size();
    EXPECT_LT(Low, Wrapper->GetCompressed(95).size());
}

TEST(FOrvTurboJpegModuleTest, AWrapperKeepsItsOutputWhileAnotherOneCompresses)
{
    FOrvTurboJpegModule Module;
    const std::vector<std::uint8_t> Small = TestCard(64, 32, 5);
    const std::unique_ptr<IOrvImageWrapper> First = Wrap(Module, Small, 64, 32);
    const std::span<const std::uint8_t> FirstJpeg = First->GetCompressed(80);
    const std::vector<std::uint8_t> FirstCopy(FirstJpeg.begin(), FirstJpeg.end());

    const std::vector<std::uint8_t> Large = TestCard(640, 480, 9);
    const std::unique_ptr<IOrvImageWrapper> Second = Wrap(Module, Large, 640, 480);
    EXPECT_EQ(DecodedSize(Second->GetCompressed(80)), std::pair(640, 480));
    EXPECT_EQ(std::vector<std::uint8_t>(FirstJpeg.begin(), FirstJpeg.end()), FirstCopy);
}
