#include "Unreal/OrvUnrealEditorUi.h"

#include "OrvessaWebBridge.h"
#include "Unreal/Closed/OrvClosedAccount.h"
#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealHandles.h"

#include "ContentBrowserModule.h"
#include "Engine/StaticMesh.h"
#include "IContentBrowserSingleton.h"
#include "Modules/ModuleManager.h"

namespace OrvWebBridge
{
    void FOrvUnrealEditorUi::NavigateWebPanel(std::string_view Url)
    {
        if (FOrvessaWebBridgeModule* Module = FOrvessaWebBridgeModule::GetLoaded())
        {
            Module->NavigateWebPanel(FOrvUnrealConversions::ToFString(Url));
        }
    }

    void FOrvUnrealEditorUi::SyncContentBrowserToMesh(FOrvMeshRef Mesh)
    {
        UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        if (!Resolved)
        {
            return;
        }
        TArray<UObject*> Assets;
        Assets.Add(Resolved);
        FContentBrowserModule& ContentBrowser =
            FModuleManager::LoadModuleChecked<FContentBrowserModule>("ContentBrowser");
        ContentBrowser.Get().SyncBrowserToAssets(Assets);
    }

    bool FOrvUnrealEditorUi::IsUserLoggedIn() const
    {
        return OrvClosedIsUserLoggedIn();
    }
} // namespace OrvWebBridge
