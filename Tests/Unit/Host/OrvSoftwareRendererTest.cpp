#include "Host/Editor/OrvSoftwareRenderer.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr int Width = 160;
    constexpr int Height = 90;
    const FOrvColor Red{40, 40, 220, 255};
    const FOrvColor Blue{220, 40, 40, 255};

    /**
     * Perspective: eye 5 m back along -X, 1 m up, looking along +X: +Y is to the right, +Z up.
     * Top: orthographic, straight down from 10 m: screen right is +Y and screen up is +X.
     */
    FOrvRenderCamera Camera(bool bTop = false)
    {
        return bTop ? FOrvRenderCamera{false, {{0, 0, 1000}, {-90, 0, 0}}, 90, 800, {Width, Height}}
                    : FOrvRenderCamera{true, {{-500, 0, 100}, {0, 0, 0}}, 90, 800, {Width, Height}};
    }

    FOrvRenderBox Box(const FOrvVector& Location, double HalfX, double HalfY, double Tall,
                      const FOrvColor& Tint, double Yaw = 0.0)
    {
        return {{{-HalfX, -HalfY, 0}, {HalfX, HalfY, Tall}}, {Location, {0, Yaw, 0}}, Tint};
    }

    std::vector<FOrvColor> Render(const FOrvRenderCamera& Camera, const std::vector<FOrvRenderBox>& Boxes)
    {
        FOrvSoftwareRenderer Renderer;
        std::vector<FOrvColor> Pixels;
        Renderer.Render(Camera, Boxes, Pixels);
        return Pixels;
    }

    const FOrvColor& At(const std::vector<FOrvColor>& Pixels, int X, int Y)
    {
        return Pixels[static_cast<std::size_t>(Y) * Width + X];
    }

    bool Same(const FOrvColor& A, const FOrvColor& B)
    {
        return std::memcmp(&A, &B, sizeof(FOrvColor)) == 0;
    }

    bool SamePictures(const std::vector<FOrvColor>& A, const std::vector<FOrvColor>& B)
    {
        return A.size() == B.size() && std::memcmp(A.data(), B.data(), A.size() * sizeof(FOrvColor)) == 0;
    }

    /** Columns and rows where a picture differs from the empty scene's. */
    struct FChangedArea
    {
        int MinX = Width, MaxX = -1, MinY = Height, MaxY = -1;
    };

    FChangedArea Changed(const std::vector<FOrvColor>& Empty, const std::vector<FOrvColor>& Picture)
    {
        FChangedArea Area;
        for (int Y = 0; Y < Height; ++Y)
        {
            for (int X = 0; X < Width; ++X)
            {
                if (!Same(At(Empty, X, Y), At(Picture, X, Y)))
                {
                    Area = {std::min(Area.MinX, X), std::max(Area.MaxX, X), std::min(Area.MinY, Y),
                            std::max(Area.MaxY, Y)};
                }
            }
        }
        return Area;
    }
} // namespace

TEST(FOrvSoftwareRendererTest, ABoxInFrontOfTheCameraChangesTheCentreAndNotTheSky)
{
    const std::vector<FOrvColor> Empty = Render(Camera(), {});
    const std::vector<FOrvColor> WithBox = Render(Camera(), {Box({0, 0, 0}, 50, 50, 200, Red)});
    EXPECT_FALSE(Same(At(Empty, Width / 2, Height / 2), At(WithBox, Width / 2, Height / 2)));
    EXPECT_TRUE(Same(At(Empty, 2, 2), At(WithBox, 2, 2)));
    EXPECT_TRUE(Same(At(Empty, Width - 3, Height - 3), At(WithBox, Width - 3, Height - 3)));

    // 100 cm wide at 450 cm depth with a 90 degree field of view: about 100 / 900 of the width.
    const FChangedArea Area = Changed(Empty, WithBox);
    EXPECT_NEAR(Area.MaxX - Area.MinX + 1, Width * 100.0 / 900.0, 3.0);
    EXPECT_NEAR((Area.MinX + Area.MaxX) / 2.0, Width / 2.0, 1.5);

    // Products are told apart by their colour.
    EXPECT_FALSE(
        Same(FOrvSoftwareRenderer::TintFor("FNV-CH-1102"), FOrvSoftwareRenderer::TintFor("FNV-TB-2040")));
}

TEST(FOrvSoftwareRendererTest, AxesFollowTheEngineConvention)
{
    const std::vector<FOrvColor> Empty = Render(Camera(), {});
    const FChangedArea Right = Changed(Empty, Render(Camera(), {Box({0, 150, 0}, 20, 20, 50, Red)}));
    EXPECT_GT(Right.MinX, Width / 2) << "+Y is to the right of a camera looking along +X";

    // Seen from above, a box long in local X lies along the screen's up axis; yaw 90 turns it to +Y,
    // which runs across the screen.
    const std::vector<FOrvColor> Floor = Render(Camera(true), {});
    const FChangedArea Straight = Changed(Floor, Render(Camera(true), {Box({0, 0, 0}, 150, 20, 10, Red)}));
    const FChangedArea Turned = Changed(Floor, Render(Camera(true), {Box({0, 0, 0}, 150, 20, 10, Red, 90)}));
    EXPECT_GT(Straight.MaxY - Straight.MinY, Straight.MaxX - Straight.MinX);
    EXPECT_GT(Turned.MaxX - Turned.MinX, Turned.MaxY - Turned.MinY);
    const FChangedArea Forward = Changed(Floor, Render(Camera(true), {Box({200, 0, 0}, 20, 20, 10, Red)}));
    EXPECT_LT(Forward.MaxY, Height / 2) << "+X is up on the screen of a top view";

    // A product's front (+Y) points to -X at yaw 90: a box reaching only forward then lies below the centre.
    const FOrvRenderBox FrontOnly{{{-20, 0, 0}, {20, 150, 10}}, {{0, 0, 0}, {0, 90, 0}}, Red};
    const FChangedArea Yawed = Changed(Floor, Render(Camera(true), {FrontOnly}));
    EXPECT_GT(Yawed.MinY, Height / 2 - 2);
}

TEST(FOrvSoftwareRendererTest, NearerBoxesHideFartherOnesWhateverTheDrawingOrder)
{
    const FOrvRenderBox Near = Box({-100, 0, 0}, 30, 30, 200, Red);
    const FOrvRenderBox Far = Box({200, 0, 0}, 30, 30, 200, Blue);
    const std::vector<FOrvColor> NearFirst = Render(Camera(), {Near, Far});
    EXPECT_TRUE(SamePictures(NearFirst, Render(Camera(), {Far, Near})));
    EXPECT_TRUE(SamePictures(NearFirst, Render(Camera(), {Near})));
}

TEST(FOrvSoftwareRendererTest, ABoxReachingBehindTheCameraDrawsItsVisiblePart)
{
    // A long low bench from behind the eye to far ahead: clipped at the near plane, not dropped.
    const std::vector<FOrvColor> Empty = Render(Camera(), {});
    const std::vector<FOrvColor> Bench = Render(Camera(), {Box({0, 0, 0}, 1000, 40, 60, Red)});
    const FChangedArea Area = Changed(Empty, Bench);
    EXPECT_GE(Area.MaxY, Height - 1) << "the part just in front of the eye reaches the bottom edge";
    EXPECT_FALSE(Same(At(Empty, Width / 2, Height - 1), At(Bench, Width / 2, Height - 1)));
}

TEST(FOrvSoftwareRendererTest, ViewportShowsLevelChangesAndHidesHiddenActors)
{
    FOrvMemoryEditor Editor;
    FOrvMemoryViewportDesc Viewport;
    Viewport.PerspectiveView = {{-500, 0, 100}, {}};
    Viewport.Size = {Width, Height};
    Editor.SetViewport(Viewport);
    const FOrvMeshRef Mesh =
        Editor.AddStaticMesh({"/Game/ORVESSA/A/SM_Cabinet", {{-50, -50, 0}, {50, 50, 200}}, {}});

    const auto Read = [&Editor]
    {
        std::vector<FOrvColor> Pixels;
        EXPECT_TRUE(Editor.Viewport().ReadPixels(Pixels));
        return Pixels;
    };
    const std::vector<FOrvColor> Empty = Read();
    const FOrvActorRef Cabinet = Editor.AddActor({"", "", "StaticMeshActor", {{0, 0, 0}, {}}, {Mesh}, true});
    const std::vector<FOrvColor> Placed = Read();
    EXPECT_FALSE(SamePictures(Empty, Placed));

    {
        FOrvScopedTransaction Transaction(Editor.Transactions(), "Move");
        Editor.Editing().SetActorTransform(Cabinet, FOrvVector{0, 300, 0}, std::nullopt);
    }
    EXPECT_FALSE(SamePictures(Placed, Read()));
    Editor.Undo();
    EXPECT_TRUE(SamePictures(Placed, Read()));
    Editor.Editing().SetTemporarilyHidden(Cabinet, true);
    EXPECT_TRUE(SamePictures(Empty, Read()));
}
