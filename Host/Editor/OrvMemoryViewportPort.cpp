#include "Host/Editor/OrvMemoryEditorPorts.h"

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
    const FOrvTransform& View = Viewport.bPerspective ? Viewport.PerspectiveView : Viewport.OrthographicView;
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

    // What the level viewport shows: every visible placed mesh of the editor world.
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
                    const std::string_view TintKey = Mesh->Tag ? Mesh->Tag->ProductID : Mesh->PackageName;
                    Boxes.push_back(FOrvRenderBox{Mesh->Bounds, Actor->Transform,
                                                  FOrvSoftwareRenderer::TintFor(TintKey)});
                }
            }
        }
    }

    FOrvRenderCamera Camera;
    Camera.bPerspective = Viewport.bPerspective;
    Camera.View = Viewport.bPerspective ? Viewport.PerspectiveView : Viewport.OrthographicView;
    Camera.FieldOfView = Viewport.FieldOfView;
    Camera.OrthoWidth = Viewport.OrthoWidth;
    Camera.Size = Viewport.Size;
    Renderer.Render(Camera, Boxes, Out);
    return true;
}
