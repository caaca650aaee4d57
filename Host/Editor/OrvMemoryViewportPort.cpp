#include "Host/Editor/OrvMemoryEditorPorts.h"

#include "Core/Tools/OrvViewportCapture.h"

namespace OrvWebBridge
{
    namespace
    {
        const FOrvColor UntaggedTint{214, 222, 228, 255};
    } // namespace

    bool FOrvMemoryViewportPort::HasActiveViewport() const
    {
        return Context.Viewport.has_value();
    }

    std::optional<FOrvViewInfo> FOrvMemoryViewportPort::GetLevelViewportView() const
    {
        if (!Context.Viewport)
        {
            return std::nullopt;
        }
        const FOrvMemoryViewportDesc& Viewport = *Context.Viewport;
        const FOrvTransform& View =
            Viewport.bPerspective ? Viewport.PerspectiveView : Viewport.OrthographicView;
        return FOrvViewInfo{View.Location, View.Rotation, Viewport.FieldOfView};
    }

    bool FOrvMemoryViewportPort::HasClientViewport() const
    {
        return Context.Viewport.has_value();
    }

    FOrvIntPoint FOrvMemoryViewportPort::GetViewportSize() const
    {
        return Context.Viewport ? Context.Viewport->Size : FOrvIntPoint{};
    }

    bool FOrvMemoryViewportPort::ReadPixels(std::vector<FOrvColor>& Out)
    {
        if (!Context.Viewport || Context.Viewport->Size.X <= 0 || Context.Viewport->Size.Y <= 0)
        {
            return false;
        }
        const FOrvMemoryViewportDesc& Viewport = *Context.Viewport;
        FOrvRenderCamera Camera;
        Camera.bPerspective = Viewport.bPerspective;
        Camera.View = Viewport.bPerspective ? Viewport.PerspectiveView : Viewport.OrthographicView;
        Camera.FieldOfView = Viewport.FieldOfView;
        Camera.OrthoWidth = Viewport.OrthoWidth;
        Camera.Size = Viewport.Size;
        if (!IsFrameCurrent(Camera))
        {
            RenderFrame(Camera);
        }
        Out.assign(Frame.begin(), Frame.end());
        if (Frame.size() > FOrvViewportCapture::MaxKeptPixels)
        {
            // As the capture does with its own buffer: a frame this large is not kept for the next read.
            std::vector<FOrvColor>().swap(Frame);
            Renderer.ReleaseBuffers();
            bHasFrame = false;
        }
        return true;
    }

    bool FOrvMemoryViewportPort::IsFrameCurrent(const FOrvRenderCamera& Camera) const
    {
        return bHasFrame && FrameRevision == Context.Level.GetRevision() &&
               bFrameWorldAvailable == Context.Level.bWorldAvailable &&
               FrameCamera.bPerspective == Camera.bPerspective && FrameCamera.View == Camera.View &&
               FrameCamera.FieldOfView == Camera.FieldOfView && FrameCamera.OrthoWidth == Camera.OrthoWidth &&
               FrameCamera.Size.X == Camera.Size.X && FrameCamera.Size.Y == Camera.Size.Y;
    }

    void FOrvMemoryViewportPort::RenderFrame(const FOrvRenderCamera& Camera)
    {
        // What the level viewport shows: every visible placed mesh of the editor world. Catalogue products
        // are tinted by product id; architecture and other untagged meshes are a neutral plaster colour.
        Boxes.clear();
        if (Context.Level.bWorldAvailable)
        {
            for (const FOrvActorRef Ref : Context.Level.GetOrder())
            {
                const FOrvMemoryActor* Actor = Context.Level.Find(Ref);
                if (!Actor->bHasRootComponent || Actor->bTemporarilyHidden)
                {
                    continue;
                }
                for (const FOrvMeshRef MeshRef : Actor->StaticMeshComponents)
                {
                    if (const FOrvMemoryMeshDesc* Mesh = Context.Assets.FindMesh(MeshRef))
                    {
                        const FOrvColor Tint =
                            Mesh->Tag ? FOrvSoftwareRenderer::TintFor(Mesh->Tag->ProductID) : UntaggedTint;
                        Boxes.push_back(FOrvRenderBox{Mesh->Bounds, Actor->Transform, Tint});
                    }
                }
            }
        }
        Renderer.Render(Camera, Boxes, Frame);
        FrameCamera = Camera;
        FrameRevision = Context.Level.GetRevision();
        bFrameWorldAvailable = Context.Level.bWorldAvailable;
        bHasFrame = true;
    }
} // namespace OrvWebBridge
