#include "Core/Common/OrvBase64.h"
#include "Tests/Support/OrvToolTestRig.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

TEST(FOrvCaptureViewTest, EncoderGetsTheWholeFrameOpaqueAndTheClientAnImageBlock)
{
    FOrvToolTestRig Rig(EOrvRigViewport::Fake);
    Rig.FakeViewport.Size = {3, 2};
    Rig.FakeViewport.Frame = {{1, 2, 3, 0}, {4, 5, 6, 7},      {8, 9, 10, 128},
                              {0, 0, 0, 0}, {11, 12, 13, 255}, {9, 9, 9, 1}};
    const FOrvToolReply Reply = Rig.Call("ue_capture_view");
    EXPECT_FALSE(Reply.bAnsweredBeforePump);
    EXPECT_EQ(Reply.Type, "image");
    EXPECT_EQ(Reply.MimeType, "image/jpeg");
    EXPECT_EQ(Reply.Text, FOrvBase64::Encode(Rig.Images.Output));
    EXPECT_EQ(Reply.Envelope.find("isError"), std::string::npos);

    const FOrvFakeJpegRecord& Record = Rig.Images.Record;
    EXPECT_EQ(Record.Width, 3);
    EXPECT_EQ(Record.Height, 2);
    EXPECT_EQ(Record.RawSize, 24);
    EXPECT_EQ(Record.RawBytes, (std::vector<std::uint8_t>{1, 2, 3, 255, 4,  5,  6,  255, 8, 9, 10, 255,
                                                          0, 0, 0, 255, 11, 12, 13, 255, 9, 9, 9,  255}));

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
    const std::pair<std::function<void(FOrvToolTestRig&)>, std::string> Cases[] = {
        {[](FOrvToolTestRig& R) { R.FakeViewport.bHasClientViewport = false; },
         R"({"error":"No active editor viewport. Open a Level Editor viewport and try again."})"},
        {[](FOrvToolTestRig& R) {
             R.FakeViewport.Size = {0, 2};
         },
         R"({"error":"Viewport has zero size."})"},
        {[](FOrvToolTestRig& R) {
             R.FakeViewport.Size = {4, -1};
         },
         R"({"error":"Viewport has zero size."})"},
        {[](FOrvToolTestRig& R) { R.FakeViewport.bReadSucceeds = false; },
         R"({"error":"Viewport->ReadPixels failed."})"},
        {[](FOrvToolTestRig& R) { R.FakeViewport.Frame.resize(7); },
         "{\"error\":\"ReadPixels size mismatch \xE2\x80\x94 got 7 pixels, expected 8.\"}"},
        {[](FOrvToolTestRig& R) { R.Images.bCreatesWrapper = false; },
         R"({"error":"Failed to create JPEG image wrapper."})"},
        {[](FOrvToolTestRig& R) { R.Images.bSetRawSucceeds = false; },
         R"({"error":"SetRaw failed on JPEG wrapper."})"},
        {[](FOrvToolTestRig& R) { R.Images.Output.clear(); },
         R"({"error":"JPEG compression produced empty buffer."})"},
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
