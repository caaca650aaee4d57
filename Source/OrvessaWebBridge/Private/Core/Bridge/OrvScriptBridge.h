#pragma once

#include "Core/Ports/IOrvBrowserWindows.h"
#include "Core/Ports/IOrvCatalogAccount.h"
#include "Core/Ports/IOrvLog.h"

#include <functional>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    class FOrvWebPanelSession;

    /** @brief What the bridge reaches; both lookups run on every call, as the editor's would. */
    struct FOrvScriptBridgePorts
    {
        std::function<IOrvCatalogAccount*()> FindAccount; ///< the editor's UOrvSubsystem; null when missing
        std::function<FOrvWebPanelSession*()> FindModule; ///< the module's panel services; null when unloaded
        IOrvBrowserWindows& Windows;
        IOrvLog& Log;
    };

    /**
     * @brief The "OrvBridge" object's fifteen script-callable functions, in the order the page sees them.
     * Holds no state; a missing account or module is logged and the call does nothing or returns its
     * default. Game thread.
     */
    class FOrvScriptBridge
    {
    public:
        explicit FOrvScriptBridge(FOrvScriptBridgePorts InPorts) : Ports(std::move(InPorts)) {}

        void AddAssetDownload(std::string_view AssetID, std::string_view AssetType);
        void AddProductToProject(std::string_view ProductID);
        void ClearLibraryData();
        std::string GetLibraryInfo();
        std::string GetUserDetails();
        bool IsCoreAuthorized();
        void LogoutUser();
        void OpenExternalURL(std::string_view URL);
        void OpenOAuthPopup(std::string_view URL);
        void RefreshPanel();
        void RemoveProductFromLibrary(std::string_view ProductID);
        void SetSessionToken(std::string_view Token);
        void SignIn(std::string_view Username, std::string_view Password);
        void TestOrvEventBus();
        void TriggerAuthCheck();

    private:
        /** The account, or null after the Warning every account-using function gives without it. */
        IOrvCatalogAccount* FindAccount();

        FOrvScriptBridgePorts Ports;
    };
} // namespace OrvWebBridge
