// ue_list_scene over a large level: the whole road from request text to response text through the
// handler, the game-thread task and the editor ports, against the least work that gives the same answer
// (a plain rapidjson::Writer over the same actors, wrapped in the same envelope).
#include "Benchmarks/OrvBenchmarkRatio.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Tests/Support/OrvFakeCapturePorts.h"
#include "Tests/Support/OrvManualGameThread.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstdio>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr int OrvActorCount = 10000;
    constexpr int OrvProductCount = 40;
    constexpr const char* OrvListRequest =
        R"({"jsonrpc":"2.0","id":1,"method":"tools/call","params":{"name":"ue_list_scene","arguments":{}}})";

    class FOrvQuietLog : public IOrvLog
    {
    public:
        void Log(EOrvLogCategory, EOrvLogVerbosity, std::string_view) override {}
    };

    /** What the anchor reads: the same actors, already in plain structures. */
    struct FOrvPlainActor
    {
        std::string Name;
        std::string Label;
        std::string ProductId;
        FOrvTransform Transform;
    };

    /** A furnished level of tagged product actors with realistic, non-integral transforms. */
    struct FOrvBigLevel
    {
        FOrvBigLevel()
        {
            std::vector<FOrvMeshRef> Meshes;
            std::vector<std::string> ProductIds;
            for (int Product = 0; Product < OrvProductCount; ++Product)
            {
                FOrvMemoryMeshDesc Mesh;
                Mesh.PackageName =
                    "/Game/ORVESSA/Brand/Collection/Meshes/SM_Product_" + std::to_string(Product);
                Mesh.Bounds = {{-50, -25, 0}, {50, 25, 90}};
                Mesh.Tag = FOrvProductTag{"PRD-" + std::to_string(100000 + Product * 37), true};
                ProductIds.push_back(Mesh.Tag->ProductID);
                Meshes.push_back(Editor.AddStaticMesh(Mesh));
            }
            for (int Index = 0; Index < OrvActorCount; ++Index)
            {
                FOrvMemoryActorDesc Actor;
                Actor.Label = "SM_Product_" + std::to_string(Index % OrvProductCount);
                Actor.Transform = {{Index * 12.5 - 3000.25, (Index % 97) * 31.7, (Index % 3) * 80.0},
                                   {0.0, (Index % 360) - 179.5, 0.0}};
                Actor.StaticMeshComponents = {Meshes[Index % OrvProductCount]};
                const FOrvMemoryActor* Placed = Editor.FindActor(Editor.AddActor(Actor));
                Plain.push_back(
                    {Placed->Name, Placed->Label, ProductIds[Index % OrvProductCount], Placed->Transform});
            }
        }

        FOrvMemoryEditor Editor;
        std::vector<FOrvPlainActor> Plain;
    };

    FOrvBigLevel& OrvLevel()
    {
        static FOrvBigLevel Level;
        return Level;
    }

    template <typename TWriter>
    void OrvWriteTriple(TWriter& Writer, const char* Key, double A, double B, double C)
    {
        Writer.Key(Key);
        Writer.StartArray();
        Writer.Double(A);
        Writer.Double(B);
        Writer.Double(C);
        Writer.EndArray();
    }
} // namespace

static void BM_ListSceneOurs(benchmark::State& State)
{
    FOrvBigLevel& Level = OrvLevel();
    FOrvManualGameThread GameThread;
    FOrvQuietLog Log;
    FOrvFakeImageWrapperModule Images;
    FOrvMemoryEditor& Editor = Level.Editor;
    FOrvMcpHandler Handler(Editor.McpPorts(Images, GameThread, Log));
    std::size_t Bytes = 0;
    for (auto _ : State)
    {
        std::string Response;
        Handler.HandleRequest(OrvListRequest, [&Response](std::string Text) { Response = std::move(Text); });
        GameThread.RunPending();
        Bytes = Response.size();
        benchmark::DoNotOptimize(Response.data());
    }
    State.counters["response_bytes"] = static_cast<double>(Bytes);
}

static void BM_ListSceneAnchor(benchmark::State& State)
{
    const std::vector<FOrvPlainActor>& Actors = OrvLevel().Plain;
    std::size_t Bytes = 0;
    for (auto _ : State)
    {
        rapidjson::StringBuffer Inner;
        rapidjson::Writer<rapidjson::StringBuffer> Writer(Inner);
        Writer.StartObject();
        Writer.Key("actors");
        Writer.StartArray();
        for (const FOrvPlainActor& Actor : Actors)
        {
            Writer.StartObject();
            Writer.Key("id");
            Writer.String(Actor.Name.data(), static_cast<rapidjson::SizeType>(Actor.Name.size()));
            Writer.Key("name");
            Writer.String(Actor.Label.data(), static_cast<rapidjson::SizeType>(Actor.Label.size()));
            Writer.Key("product_id");
            Writer.String(Actor.ProductId.data(), static_cast<rapidjson::SizeType>(Actor.ProductId.size()));
            const FOrvTransform& T = Actor.Transform;
            OrvWriteTriple(Writer, "location", T.Location.X, T.Location.Y, T.Location.Z);
            OrvWriteTriple(Writer, "rotation", T.Rotation.Pitch, T.Rotation.Yaw, T.Rotation.Roll);
            Writer.EndObject();
        }
        Writer.EndArray();
        Writer.EndObject();

        rapidjson::StringBuffer Envelope;
        rapidjson::Writer<rapidjson::StringBuffer> Outer(Envelope);
        Outer.StartObject();
        Outer.Key("jsonrpc");
        Outer.String("2.0");
        Outer.Key("id");
        Outer.Int(1);
        Outer.Key("result");
        Outer.StartObject();
        Outer.Key("content");
        Outer.StartArray();
        Outer.StartObject();
        Outer.Key("type");
        Outer.String("text");
        Outer.Key("text");
        Outer.String(Inner.GetString(), static_cast<rapidjson::SizeType>(Inner.GetSize()));
        Outer.EndObject();
        Outer.EndArray();
        Outer.EndObject();
        Outer.EndObject();
        Bytes = Envelope.GetSize();
        benchmark::DoNotOptimize(Envelope.GetString());
    }
    State.counters["response_bytes"] = static_cast<double>(Bytes);
}

BENCHMARK(BM_ListSceneOurs)->Unit(benchmark::kMillisecond)->Apply(FOrvRatioReporter::AddMinimum);
BENCHMARK(BM_ListSceneAnchor)->Unit(benchmark::kMillisecond)->Apply(FOrvRatioReporter::AddMinimum);

int main(int Argc, char** Argv)
{
    std::vector<char*> Arguments = FOrvRatioReporter::Arguments(Argc, Argv);
    int ArgumentCount = static_cast<int>(Arguments.size()) - 1;
    benchmark::Initialize(&ArgumentCount, Arguments.data());
    OrvLevel();
    FOrvRatioReporter Reporter;
    benchmark::RunSpecifiedBenchmarks(&Reporter);
    std::printf("\nue_list_scene, %d tagged actors: request text -> response text, against a direct "
                "rapidjson::Writer of the same actors in the same envelope (compact).\n",
                OrvActorCount);
    Reporter.PrintRatios("BM_ListSceneOurs", "BM_ListSceneAnchor", 2.0);
    benchmark::Shutdown();
    return 0;
}
