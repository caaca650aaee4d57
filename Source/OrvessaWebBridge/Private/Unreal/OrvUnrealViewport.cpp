#include "Unreal/OrvUnrealViewport.h"

#include "Unreal/OrvUnrealConversions.h"

#include "Editor.h"
#include "LevelEditorViewport.h"
#include "UnrealClient.h"

namespace OrvWebBridge
{
    namespace
    {
        FViewport* OrvUnrealClientViewport()
        {
            return GCurrentLevelEditingViewportClient ? GCurrentLevelEditingViewportClient->Viewport
                                                      : nullptr;
        }
    } // namespace

    bool FOrvUnrealViewport::HasActiveViewport() const
    {
        return GEditor && GEditor->GetActiveViewport();
    }

    std::optional<FOrvViewInfo> FOrvUnrealViewport::GetLevelViewportView() const
    {
        const FLevelEditorViewportClient* Client = GCurrentLevelEditingViewportClient;
        if (!Client)
        {
            return std::nullopt;
        }
        // GetViewLocation/Rotation read the perspective or the orthographic transform, as IsPerspective()
        // says.
        FOrvViewInfo View;
        View.Location = FOrvUnrealConversions::ToOrvVector(Client->GetViewLocation());
        View.Rotation = FOrvUnrealConversions::ToOrvRotator(Client->GetViewRotation());
        View.FieldOfView = Client->ViewFOV;
        return View;
    }

    bool FOrvUnrealViewport::HasClientViewport() const
    {
        return OrvUnrealClientViewport() != nullptr;
    }

    FOrvIntPoint FOrvUnrealViewport::GetViewportSize() const
    {
        const FViewport* Viewport = OrvUnrealClientViewport();
        if (!Viewport)
        {
            return FOrvIntPoint();
        }
        const FIntPoint Size = Viewport->GetSizeXY();
        return FOrvIntPoint{Size.X, Size.Y};
    }

    bool FOrvUnrealViewport::ReadPixels(std::vector<FOrvColor>& Out)
    {
        FViewport* Viewport = OrvUnrealClientViewport();
        TArray<FColor> Pixels;
        // Blocks while rendering flushes; the image includes the editor's overlays.
        if (!Viewport || !Viewport->ReadPixels(Pixels))
        {
            return false;
        }
        FOrvUnrealConversions::ToOrvColors(Pixels, Out);
        return true;
    }
} // namespace OrvWebBridge
