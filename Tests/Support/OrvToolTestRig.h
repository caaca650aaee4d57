#pragma once

#include "Core/Mcp/OrvMcpHandler.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Tests/Support/OrvFakeCapturePorts.h"
#include "Tests/Support/OrvManualGameThread.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvRecordingLog.h"

#include "Core/Json/OrvRapidJson.h"

#include <memory>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Which viewport the tools see: the in-memory editor's, or a fake a test sets up. */
    enum class EOrvRigViewport
    {
        Editor,
        Fake
    };

    /**
     * @brief The editor tools behind a real handler: an in-memory editor, a game thread pumped by hand, a
     * fake JPEG encoder and (optionally) a fake viewport. Calls go through HandleRequest as tools/call.
     */
    class FOrvToolTestRig
    {
    public:
        explicit FOrvToolTestRig(EOrvRigViewport ViewportKind = EOrvRigViewport::Editor);

        /** Sends tools/call (ArgumentsJson empty: no arguments member), pumps, reads the block. */
        FOrvToolReply Call(std::string_view Name, std::string_view ArgumentsJson = "{}");

        /** Sends tools/call without pumping; the game thread must be run by the test. */
        void CallLater(std::string_view Name, std::string_view ArgumentsJson,
                       std::vector<std::string>& OutResponses);

        /** Adds "/Game/ORVESSA/<Folder>/<Name>" with a valid product tag ProductId (none when empty). */
        FOrvMeshRef AddCatalogMesh(const std::string& Folder, const std::string& Name,
                                   const std::string& ProductId,
                                   const FOrvBox& Bounds = {{-50, -25, 0}, {50, 25, 90}});

        FOrvActorRef AddMeshActor(FOrvMeshRef Mesh, const FOrvTransform& Transform = {},
                                  const std::string& Label = {});

        FOrvMemoryEditor Editor;
        FOrvManualGameThread GameThread;
        FOrvRecordingLog Log;
        FOrvFakeViewport FakeViewport;
        FOrvFakeImageWrapperModule Images;
        std::unique_ptr<FOrvMcpHandler> Handler;
    };

    /** @brief Reads a JSON [a, b, c] array member into a triple for EXPECT_EQ; NaNs when it is not one. */
    struct FOrvTriple
    {
        double A = 0;
        double B = 0;
        double C = 0;
        friend bool operator==(const FOrvTriple&, const FOrvTriple&) = default;
    };
    FOrvTriple OrvReadTriple(const rapidjson::Value& Object, const char* Key);
    std::ostream& operator<<(std::ostream& Stream, const FOrvTriple& Triple);
} // namespace OrvWebBridge
