// The capture tool over a fake viewport and encoder; the real encoder has its own tests, and the real host's
// capture is decoded by the MCP SDK client.
#include "Core/Common/OrvBase64.h"
#include "Core/Tools/OrvViewportCapture.h"
#include "Tests/Support/OrvFakeCapturePorts.h"
#include "Tests/Support/OrvToolTestRig.h"

#include <gtest/gtest.h>

#include <string>

using namespace OrvWebBridge;

TEST(FOrvCaptureViewTest, EncoderGetsTheWholeFrameOpaqueAndTheClientAnImageBlock)
{
    FOrvToolTestRig Rig(EOrvRigViewport::Fake);
    // 20 pixels: whole blocks and a remainder both go through the alpha pass.
    Rig.FakeViewport.Size = {5, 4};
    Rig.FakeViewport.Frame.clear();
    std::vector<std::uint8_t> Expected;
    for (std::uint8_t Index = 0; Index < 20; ++Index)
    {
        Rig.FakeViewport.Frame.push_back(
            {Index, std::uint8_t(Index + 1), std::uint8_t(Index + 2), std::uint8_t(Index * 13)});
        Expected.insert(Expected.end(), {Index, std::uint8_t(Index + 1), std::uint8_t(Index + 2), 255});
    }
    const FOrvToolReply Reply = Rig.Call("ue_capture_view");
    EXPECT_FALSE(Reply.bAnsweredBeforePump);
    EXPECT_EQ(Reply.Type, "image");
    EXPECT_EQ(Reply.MimeType, "image/jpeg");
    EXPECT_EQ(Reply.Text, FOrvBase64::Encode(Rig.Images.Output));
    EXPECT_EQ(Reply.Envelope.find("isError"), std::string::npos);
    EXPECT_NE(Reply.Envelope.find("\t\t\t\t\"data\": \"" + Reply.Text + "\",\r\n"), std::string::npos)
        << "as is, first";

    const FOrvFakeJpegRecord& Record = Rig.Images.Record;
    EXPECT_EQ(Record.Width, 5);
    EXPECT_EQ(Record.Height, 4);
    EXPECT_EQ(Record.RawSize, 80);
    EXPECT_EQ(Record.RawBytes, Expected);

    // The kept buffer follows a resized viewport.
    Rig.FakeViewport.Size = {1, 2};
    Rig.FakeViewport.Frame.resize(2);
    EXPECT_EQ(Rig.Call("ue_capture_view").Type, "image");
    EXPECT_EQ(Rig.Images.Record.RawSize, 8);
}

TEST(FOrvCaptureViewTest, QualityIsRoundedAndClampedAndOnlyNumbersCount)
{
    FOrvToolTestRig Rig(EOrvRigViewport::Fake);
    const std::pair<const char*, int> Cases[] = {
        {"", 80},
        {R"({"quality":60})", 60},
        {R"({"quality":0})", 1},
        {R"({"quality":-5})", 1},
        {R"({"quality":250})", 100},
        {R"({"quality":"high"})", 80},
        {R"({"quality":"40"})", 80},
        {R"({"quality":55.5})", 56},
        {R"({"quality":-0.5})", 1},
        {R"({"quality":1e12})", 80},
        // Argument names are found as the editor's FJsonObject finds them: any case, the last one wins.
        {R"({"QUALITY":30})", 30},
        {R"({"quality":10,"Quality":20})", 20},
    };
    for (const auto& [Json, Expected] : Cases)
    {
        Rig.Images.Record.Quality.reset();
        Rig.Call("ue_capture_view", Json);
        EXPECT_EQ(Rig.Images.Record.Quality, Expected) << Json;
    }
}

TEST(FOrvCaptureViewTest, EachFailingStepAnswersItsOwnSentence)
{
    const std::pair<void (*)(FOrvToolTestRig&), std::string> Cases[] = {
        {[](auto& R) { R.FakeViewport.bHasClientViewport = false; },
         R"({"error":"No active editor viewport. Open a Level Editor viewport and try again."})"},
        {[](auto& R) { R.FakeViewport.Size.X = 0; }, R"({"error":"Viewport has zero size."})"},
        {[](auto& R) { R.FakeViewport.Size.Y = -1; }, R"({"error":"Viewport has zero size."})"},
        {[](auto& R) {
             R.FakeViewport.Size = {16385, 2};
         },
         R"({"error":"Viewport size 16385x2 is larger than the engine's largest texture side (16384 pixels)."})"},
        {[](auto& R) { R.FakeViewport.bReadSucceeds = false; },
         R"({"error":"Viewport->ReadPixels failed."})"},
        {[](auto& R) { R.FakeViewport.Frame.resize(7); },
         "{\"error\":\"ReadPixels size mismatch \xE2\x80\x94 got 7 pixels, expected 8.\"}"},
        {[](auto& R) { R.Images.bCreatesWrapper = false; },
         R"({"error":"Failed to create JPEG image wrapper."})"},
        {[](auto& R) { R.Images.bSetRawSucceeds = false; }, R"({"error":"SetRaw failed on JPEG wrapper."})"},
        {[](auto& R) { R.Images.Output.clear(); }, R"({"error":"JPEG compression produced empty buffer."})"},
    };
    for (const auto& [Break, Expected] : Cases)
    {
        FOrvToolTestRig Rig(EOrvRigViewport::Fake);
        Break(Rig);
        const FOrvToolReply Reply = Rig.Call("ue_capture_view");
        EXPECT_EQ(Reply.Type, "text");
        EXPECT_EQ(Reply.Text, Expected);
    }
}

TEST(FOrvCaptureViewTest, AHugeFramesBufferIsReleasedAfterItsAnswerAnOrdinaryOneKept)
{
    FOrvFakeViewport Viewport;
    FOrvFakeImageWrapperModule Images;
    FOrvViewportCapture Capture;
    Viewport.Size = {1920, 1080};
    Viewport.Frame.assign(1920 * 1080, FOrvColor{});
    EXPECT_EQ(Capture.Capture(Viewport, Images, 80).Kind, FOrvMcpContent::EKind::Image);
    EXPECT_GE(Capture.GetKeptPixelCapacity(), 1920u * 1080u);

    // Released whatever the answer; a failed encoding spares the test the fake encoder's copy.
    Viewport.Size = {16384, 1100};
    Viewport.Frame.assign(16384 * 1100, FOrvColor{});
    Images.bSetRawSucceeds = false;
    EXPECT_EQ(Capture.Capture(Viewport, Images, 80).Text, R"({"error":"SetRaw failed on JPEG wrapper."})");
    EXPECT_EQ(Capture.GetKeptPixelCapacity(), 0u);
}
