#pragma once

#include "Core/Ports/IOrvEditorUi.h"

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief The editor services the outliner reaches, as the headless host has them: no web panel, signed
     * in.
     */
    class FOrvHostEditorUi : public IOrvEditorUi
    {
    public:
        void NavigateWebPanel(std::string_view Url) override { NavigatedUrls.emplace_back(Url); }
        void SyncContentBrowserToMesh(FOrvMeshRef Mesh) override { SyncedMeshes.push_back(Mesh); }
        bool IsUserLoggedIn() const override { return bLoggedIn; }

        bool bLoggedIn = true; ///< the host has no sign-in; the offline catalogue needs none
        std::vector<std::string> NavigatedUrls;
        std::vector<FOrvMeshRef> SyncedMeshes;
    };
} // namespace OrvWebBridge
