#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvEditorUi.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /**
     * @brief IOrvEditorUi: the catalogue panel through the module, the Content Browser, and the catalogue
     * account's login state from the maker's core module (signed out when that module is not installed).
     */
    class FOrvUnrealEditorUi final : public IOrvEditorUi
    {
    public:
        explicit FOrvUnrealEditorUi(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual void NavigateWebPanel(std::string_view Url) override;
        virtual void SyncContentBrowserToMesh(FOrvMeshRef Mesh) override;
        virtual bool IsUserLoggedIn() const override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
