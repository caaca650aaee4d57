#include "Core/Tools/OrvMcpToolHelpers.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace OrvWebBridge;

namespace
{
    FOrvMeshRef AddMesh(FOrvMemoryEditor& Editor, const std::string& PackageName)
    {
        FOrvMemoryMeshDesc Mesh;
        Mesh.PackageName = PackageName;
        return Editor.AddStaticMesh(Mesh);
    }
} // namespace

TEST(FOrvMountingHintTest, HintFollowsHowTheBoxSitsOnItsPivotWithinTolerance)
{
    const double NaN = std::numeric_limits<double>::quiet_NaN();
    struct FCase
    {
        double MinY, MaxY, MinZ, MaxZ;
        const char* Hint;
    };
    const FCase Cases[] = {{-25, 25, 0, 90, "floor-center"},
                           {0, 50, 0, 90, "floor-back"},
                           {-50, 0, 0, 90, "floor-back"},
                           {-25, 25, -60, 0, "ceiling"},
                           {-3, 0, -40, 40, "wall"},
                           {-25, 25, -40, 40, "custom"},
                           {-25, 25, 10, 100, "custom"},
                           // 10 cm tall: 5 % would be 0.5 cm, the 2 cm floor applies.
                           {-25, 25, 1.9, 11.9, "floor-center"},
                           {-25, 25, 2.1, 12.1, "custom"},
                           // 100 cm deep: a back face 4.9 cm off the pivot still counts, 5.1 cm does not.
                           {4.9, 104.9, 0, 90, "floor-back"},
                           {5.1, 105.1, 0, 90, "floor-center"},
                           // Zero height at the pivot both rests and hangs: the floor is tested first.
                           {-25, 25, 0, 0, "floor-center"},
                           // A NaN face counts as touching the pivot; a NaN height keeps the 2 cm tolerance.
                           {NaN, 25, 0, 90, "floor-back"},
                           {-25, 25, 1, NaN, "floor-center"}};
    for (const FCase& Case : Cases)
    {
        // X never takes part: a box far off to the side sits the same way.
        for (const double OffsetX : {0.0, 700.0})
        {
            const FOrvBox Box{{OffsetX - 40, Case.MinY, Case.MinZ}, {OffsetX + 40, Case.MaxY, Case.MaxZ}};
            EXPECT_STREQ(FOrvMcpToolHelpers::GetMountingHint(Box), Case.Hint)
                << "Y " << Case.MinY << ".." << Case.MaxY << ", Z " << Case.MinZ << ".." << Case.MaxZ;
        }
    }
}

TEST(FOrvVectorArgumentTest, MalformedVectorsCountAsAbsentAndExtraOrOddElementsAreTolerated)
{
    for (const char* Json : {R"({})", R"({"v":"1,2,3"})", R"({"v":{"x":1}})", R"({"v":[100,200]})"})
    {
        rapidjson::Document Arguments;
        Arguments.Parse(Json);
        double A = 7, B = 8, C = 9;
        EXPECT_FALSE(FOrvMcpToolHelpers::TryGetVectorArgument(Arguments, "v", A, B, C)) << Json;
        EXPECT_EQ(A + B + C, 24) << Json;
    }
    rapidjson::Document Arguments;
    Arguments.Parse(R"({"v":[1,2.5,-3,4],"w":["1",null,[5]]})");
    double A = 7, B = 8, C = 9;
    ASSERT_TRUE(FOrvMcpToolHelpers::TryGetVectorArgument(Arguments, "v", A, B, C));
    EXPECT_EQ((FOrvVector{A, B, C}), (FOrvVector{1, 2.5, -3}));
    ASSERT_TRUE(FOrvMcpToolHelpers::TryGetVectorArgument(Arguments, "w", A, B, C));
    EXPECT_EQ((FOrvVector{A, B, C}), (FOrvVector{0, 0, 0}));
}

TEST(FOrvResolveStaticMeshTest, PathsLoadBareNamesFindTheFirstCatalogueMeshIgnoringCaseAndPrefix)
{
    FOrvMemoryEditor Editor;
    const FOrvMeshRef Chair = AddMesh(Editor, "/Game/ORVESSA/Brand/Meshes/SM_Chair");
    const FOrvMeshRef Outside = AddMesh(Editor, "/Game/Other/SM_Lamp");
    for (const char* Path : {"SM_Chair", "Chair", "sm_chair", "/Game/ORVESSA/Brand/Meshes/SM_Chair.SM_Chair",
                             "/Game/Moved/SM_Chair.SM_Chair", "/Game/Moved/Chair"})
    {
        EXPECT_EQ(FOrvMcpToolHelpers::ResolveStaticMesh(Editor.Assets(), Path), Chair) << Path;
    }
    EXPECT_EQ(FOrvMcpToolHelpers::ResolveStaticMesh(Editor.Assets(), "/Game/Other/SM_Lamp.SM_Lamp"), Outside);
    for (const char* Path : {"Lamp", "Sofa", "SM_", "Chai", "SM_Chair.", "/Game/ORVESSA/Brand/Meshes/"})
    {
        EXPECT_FALSE(FOrvMcpToolHelpers::ResolveStaticMesh(Editor.Assets(), Path)) << Path;
    }
    // The first static mesh of the name in registry order wins.
    Editor.AddAsset({"/Game/ORVESSA/A/SM_Lamp", "/Game/ORVESSA/A", "SM_Lamp", "/Script/Engine.Material"});
    const FOrvMeshRef First = AddMesh(Editor, "/Game/ORVESSA/B/SM_Lamp");
    AddMesh(Editor, "/Game/ORVESSA/C/SM_Lamp");
    EXPECT_EQ(FOrvMcpToolHelpers::ResolveStaticMesh(Editor.Assets(), "Lamp"), First);
}
