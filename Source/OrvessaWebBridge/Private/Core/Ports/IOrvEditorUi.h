#pragma once

#include "Core/Common/OrvTypes.h"

#include <string_view>

namespace OrvWebBridge
{
    /** @brief Editor services the outliner reaches outside itself. Game thread. */
    class IOrvEditorUi
    {
    public:
        virtual ~IOrvEditorUi() = default;

        /** Navigates the catalogue web panel to Url when the plugin module is loaded. */
        virtual void NavigateWebPanel(std::string_view Url) = 0;

        /** Syncs the Content Browser to the mesh's asset. */
        virtual void SyncContentBrowserToMesh(FOrvMeshRef Mesh) = 0;

        /** The catalogue account's login state (UOrvSubsystem); false without the subsystem. */
        virtual bool IsUserLoggedIn() const = 0;
    };
} // namespace OrvWebBridge
