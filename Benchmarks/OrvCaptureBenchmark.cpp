// ue_capture_view from pixels in memory to the HTTP response body, against the floor that no capture
// can go below: TurboJPEG compressing the same frame with the same settings, plus Base64 of its output.
//
// Rendering is left out of both sides: the frame is rendered once by the host's software renderer
// (the demo room) and a viewport hands it out on every ReadPixels. The renderer draws flat-shaded boxes,
// which TurboJPEG compresses unusually fast; the third argument 1 adds fixed pseudo-random surface
// detail (as textures and lighting give a real editor frame) to show how the ratio moves with content.
// "Ours" starts, as the anchor does, from the frame in memory: the viewport hands its pixels over
// without touching them, and everything after that (the tool call, the encoder, Base64, the envelope)
// is measured. "OursWithCopy" also copies the frame into the capture's buffer on each read, as the
// engine's ReadPixels copies its read-back surface; it is shown beside, for what that copy adds.
#include "Benchmarks/OrvBenchmarkRatio.h"
#include "Core/Common/OrvBase64.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvTurboJpegModule.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr int OrvCaptureQuality = 80;
    constexpr const char* OrvCaptureRequest =
        R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":"ue_capture_view","arguments":{"quality":80}}})";

    class FOrvCaptureQuietLog : public IOrvLog
    {
    public:
        void Log(EOrvLogCategory, EOrvLogVerbosity, std::string_view) override {}
    };

    /** The demo room as the level viewport shows it, rendered once per size and detail. */
    const std::vector<FOrvColor>& OrvDemoFrame(int Width, int Height, bool bDetailed)
    {
        static std::map<std::tuple<int, int, bool>, std::vector<FOrvColor>> Frames;
        std::vector<FOrvColor>& Frame = Frames[{Width, Height, bDetailed}];
        if (!Frame.empty())
        {
            return Frame;
        }
        FOrvMemoryEditor Editor;
        FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor);
        FOrvMemoryViewportDesc Viewport = Editor.GetViewport().value_or(FOrvMemoryViewportDesc{});
        Viewport.Size = {Width, Height};
        Editor.SetViewport(Viewport);
        Editor.Viewport().ReadPixels(Frame);
        std::uint32_t Noise = 2463534242u;
        for (FOrvColor& Pixel : Frame)
        {
            if (!bDetailed)
            {
                break;
            }
            Noise ^= Noise << 13;
            Noise ^= Noise >> 17;
            Noise ^= Noise << 5;
            const int Offset = static_cast<int>(Noise % 25) - 12;
            Pixel.B = static_cast<std::uint8_t>(std::clamp(Pixel.B + Offset, 0, 255));
            Pixel.G = static_cast<std::uint8_t>(std::clamp(Pixel.G + Offset, 0, 255));
            Pixel.R = static_cast<std::uint8_t>(std::clamp(Pixel.R + Offset, 0, 255));
        }
        return Frame;
    }

    /** A level viewport that returns a prepared frame: copied into the reader's array, or swapped in. */
    class FOrvPreparedViewport : public IOrvViewport
    {
    public:
        FOrvPreparedViewport(std::vector<FOrvColor> InFrame, FOrvIntPoint InSize, bool bInCopy)
            : Frame(std::move(InFrame)), Size(InSize), bCopy(bInCopy)
        {
        }

        bool HasActiveViewport() const override { return true; }
        std::optional<FOrvViewInfo> GetLevelViewportView() const override { return FOrvViewInfo{}; }
        bool HasClientViewport() const override { return true; }
        FOrvIntPoint GetViewportSize() const override { return Size; }

        bool ReadPixels(std::vector<FOrvColor>& Out) override
        {
            if (bCopy)
            {
                Out.resize(Frame.size());
                std::memcpy(Out.data(), Frame.data(), Frame.size() * sizeof(FOrvColor));
            }
            else
            {
                // Hands the frame over and takes the previous buffer back: no pixel is touched.
                Out.swap(Frame);
                if (Frame.size() != Out.size())
                {
                    Frame = Out;
                }
            }
            return true;
        }

    private:
        std::vector<FOrvColor> Frame;
        FOrvIntPoint Size;
        bool bCopy;
    };

    void OrvRunOurs(benchmark::State& State, bool bCopy)
    {
        const int Width = static_cast<int>(State.range(0));
        const int Height = static_cast<int>(State.range(1));
        FOrvMemoryEditor Editor;
        FOrvManualGameThread GameThread;
        FOrvCaptureQuietLog Log;
        FOrvTurboJpegModule Jpeg;
        FOrvPreparedViewport Viewport(OrvDemoFrame(Width, Height, State.range(2) != 0), {Width, Height},
                                      bCopy);
        FOrvMcpHandler Handler({Editor.World(), Editor.Editing(), Editor.Transactions(), Editor.Assets(),
                                Editor.Meshes(), Viewport, Jpeg, GameThread, Log});
        std::size_t Bytes = 0;
        for (auto _ : State)
        {
            std::string Body;
            Handler.HandleRequest(OrvCaptureRequest, [&Body](std::string Text) { Body = std::move(Text); });
            GameThread.RunPending();
            Bytes = Body.size();
            benchmark::DoNotOptimize(Body.data());
        }
        if (Bytes < 1000)
        {
            State.SkipWithError("the capture did not answer with an image");
        }
        State.counters["body_bytes"] = static_cast<double>(Bytes);
    }
} // namespace

static void BM_CaptureOurs(benchmark::State& State)
{
    OrvRunOurs(State, false);
}

static void BM_CaptureOursWithCopy(benchmark::State& State)
{
    OrvRunOurs(State, true);
}

// The same encoder settings as the host's wrapper (BGRA, 4:2:0, fast DCT, a buffer sized once) and
// the same Base64 encoder writing into a reserved string: the least work that yields the image text.
static void BM_CaptureAnchor(benchmark::State& State)
{
    const int Width = static_cast<int>(State.range(0));
    const int Height = static_cast<int>(State.range(1));
    const std::vector<FOrvColor>& Frame = OrvDemoFrame(Width, Height, State.range(2) != 0);
    tjhandle Handle = tjInitCompress();
    unsigned long Capacity = tjBufSize(Width, Height, TJSAMP_420);
    unsigned char* Buffer = tjAlloc(static_cast<int>(Capacity));
    std::size_t Bytes = 0;
    for (auto _ : State)
    {
        unsigned long Size = Capacity;
        tjCompress2(Handle, reinterpret_cast<const unsigned char*>(Frame.data()), Width, 0, Height, TJPF_BGRA,
                    &Buffer, &Size, TJSAMP_420, OrvCaptureQuality, TJFLAG_NOREALLOC | TJFLAG_FASTDCT);
        std::string Text;
        Text.reserve(FOrvBase64::GetEncodedSize(Size));
        FOrvBase64::EncodeAppend({Buffer, Size}, Text);
        Bytes = Text.size();
        benchmark::DoNotOptimize(Text.data());
    }
    tjFree(Buffer);
    tjDestroy(Handle);
    State.counters["base64_bytes"] = static_cast<double>(Bytes);
}

// Arguments: width, height, surface detail (0 the flat demo frame, 1 detailed).
static void OrvCaptureCases(benchmark::internal::Benchmark* Benchmark)
{
    Benchmark->ArgsProduct({{1920}, {1080}, {0, 1}})->ArgsProduct({{3840}, {2160}, {0, 1}});
    Benchmark->Unit(benchmark::kMillisecond);
    FOrvRatioReporter::AddMinimum(Benchmark);
}
BENCHMARK(BM_CaptureOurs)->Apply(OrvCaptureCases);
BENCHMARK(BM_CaptureOursWithCopy)->Apply(OrvCaptureCases);
BENCHMARK(BM_CaptureAnchor)->Apply(OrvCaptureCases);

int main(int Argc, char** Argv)
{
    std::vector<char*> Arguments = FOrvRatioReporter::Arguments(Argc, Argv);
    int ArgumentCount = static_cast<int>(Arguments.size()) - 1;
    benchmark::Initialize(&ArgumentCount, Arguments.data());
    FOrvRatioReporter Reporter;
    benchmark::RunSpecifiedBenchmarks(&Reporter);
    std::printf("\nue_capture_view at quality %d: pixels in memory -> HTTP response body, against TurboJPEG "
                "(same settings) + Base64 of the same frame.\n",
                OrvCaptureQuality);
    Reporter.PrintRatios("BM_CaptureOurs/", "BM_CaptureAnchor/", 1.15);
    std::printf(
        "\nFor reference, with a ReadPixels copy of the frame into the capture's buffer (not part of the "
        "anchor):\n");
    Reporter.PrintRatios("BM_CaptureOursWithCopy/", "BM_CaptureAnchor/", 1.15);
    benchmark::Shutdown();
    return 0;
}
