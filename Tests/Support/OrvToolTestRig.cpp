#include "Tests/Support/OrvToolTestRig.h"

#include "Core/Json/OrvJson.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace OrvWebBridge
{
    FOrvToolTestRig::FOrvToolTestRig(EOrvRigViewport ViewportKind)
    {
        IOrvViewport& Viewport = ViewportKind == EOrvRigViewport::Fake
                                     ? static_cast<IOrvViewport&>(FakeViewport)
                                     : Editor.Viewport();
        const FOrvMcpPorts Ports{Editor.World(),  Editor.Editing(), Editor.Transactions(),
                                 Editor.Assets(), Editor.Meshes(),  Viewport,
                                 Images,          GameThread,       Log};
        Handler = std::make_unique<FOrvMcpHandler>(Ports);
    }

    void FOrvToolTestRig::CallLater(std::string_view Name, std::string_view ArgumentsJson,
                                    std::vector<std::string>& OutResponses)
    {
        Handler->HandleRequest(OrvToolCallRequest(Name, ArgumentsJson), [&OutResponses](std::string Text)
                               { OutResponses.push_back(std::move(Text)); });
    }

    FOrvToolReply FOrvToolTestRig::Call(std::string_view Name, std::string_view ArgumentsJson)
    {
        std::vector<std::string> Responses;
        CallLater(Name, ArgumentsJson, Responses);
        const bool bAnsweredBeforePump = !Responses.empty();
        GameThread.RunPending();
        EXPECT_EQ(Responses.size(), 1u) << Name;
        FOrvToolReply Reply = Responses.empty() ? FOrvToolReply{} : FOrvToolReply::Parse(Responses.front());
        Reply.bAnsweredBeforePump = bAnsweredBeforePump;
        return Reply;
    }

    FOrvMeshRef FOrvToolTestRig::AddCatalogMesh(const std::string& Folder, const std::string& Name,
                                                const std::string& ProductId, const FOrvBox& Bounds)
    {
        FOrvMemoryMeshDesc Mesh;
        Mesh.PackageName = "/Game/ORVESSA/" + Folder + "/" + Name;
        Mesh.Bounds = Bounds;
        if (!ProductId.empty())
        {
            Mesh.Tag = FOrvProductTag{ProductId, true};
        }
        return Editor.AddStaticMesh(Mesh);
    }

    FOrvActorRef FOrvToolTestRig::AddMeshActor(FOrvMeshRef Mesh, const FOrvTransform& Transform,
                                               const std::string& Label)
    {
        FOrvMemoryActorDesc Actor;
        Actor.Label = Label;
        Actor.Transform = Transform;
        Actor.StaticMeshComponents = {Mesh};
        return Editor.AddActor(Actor);
    }

    FOrvTriple OrvReadTriple(const rapidjson::Value& Object, const char* Key)
    {
        const double NaN = std::numeric_limits<double>::quiet_NaN();
        const rapidjson::Value* Array = FOrvJson::TryGetArrayField(Object, Key);
        if (!Array || Array->Size() != 3 || !(*Array)[0].IsNumber() || !(*Array)[1].IsNumber() ||
            !(*Array)[2].IsNumber())
        {
            return {NaN, NaN, NaN};
        }
        return {(*Array)[0].GetDouble(), (*Array)[1].GetDouble(), (*Array)[2].GetDouble()};
    }

    std::ostream& operator<<(std::ostream& Stream, const FOrvTriple& Triple)
    {
        return Stream << '[' << Triple.A << ", " << Triple.B << ", " << Triple.C << ']';
    }
} // namespace OrvWebBridge
