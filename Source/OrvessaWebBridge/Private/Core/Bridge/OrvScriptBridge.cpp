#include "Core/Bridge/OrvScriptBridge.h"

#include "Core/Bridge/OrvLibraryJson.h"
#include "Core/Bridge/OrvWebPanelSession.h"
#include "Core/Common/OrvLogging.h"

namespace OrvWebBridge
{
    namespace
    {
        constexpr EOrvLogCategory BridgeLog = EOrvLogCategory::LogTemp;
    } // namespace

    IOrvCatalogAccount* FOrvScriptBridge::FindAccount()
    {
        IOrvCatalogAccount* Account = Ports.FindAccount();
        if (!Account)
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Warning,
                    "Orv Bridge - Error Getting OrvCore - OrvSubsystem was not valid.");
        }
        return Account;
    }

    void FOrvScriptBridge::AddAssetDownload(std::string_view AssetID, std::string_view AssetType)
    {
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->EnqueueDownload(AssetID, AssetType);
        }
    }

    void FOrvScriptBridge::AddProductToProject(std::string_view ProductID)
    {
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->AddInstalledProductToProject(ProductID);
        }
    }

    void FOrvScriptBridge::ClearLibraryData()
    {
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->ClearLibrary();
        }
    }

    std::string FOrvScriptBridge::GetLibraryInfo()
    {
        IOrvCatalogAccount* Account = FindAccount();
        return Account ? FOrvLibraryJson::Write(Account->GetLibrary()) : "{}";
    }

    std::string FOrvScriptBridge::GetUserDetails()
    {
        IOrvCatalogAccount* Account = FindAccount();
        return Account ? Account->GetCurrentUserJson() : "{}";
    }

    bool FOrvScriptBridge::IsCoreAuthorized()
    {
        IOrvCatalogAccount* Account = FindAccount();
        return Account && Account->GetLoginState();
    }

    void FOrvScriptBridge::LogoutUser()
    {
        IOrvCatalogAccount* Account = FindAccount();
        if (!Account)
        {
            return;
        }
        Account->LogoutUser();
        if (FOrvWebPanelSession* Module = Ports.FindModule())
        {
            Module->DeleteBrowserCookies();
        }
    }

    void FOrvScriptBridge::OpenExternalURL(std::string_view URL)
    {
        if (URL.empty())
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error,
                    "Orv Bridge - OpenExternalURL: URL is empty!");
            return;
        }
        Ports.Windows.LaunchUrl(URL);
    }

    void FOrvScriptBridge::OpenOAuthPopup(std::string_view URL)
    {
        if (URL.empty())
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error, "[OAuth] URL is empty!");
            return;
        }
        FOrvWebPanelSession* Module = Ports.FindModule();
        if (!Module)
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error,
                    "[OAuth] Module not available, falling back to external browser");
            Ports.Windows.LaunchUrl(URL);
            return;
        }
        Module->OpenOAuthPopup(URL);
    }

    void FOrvScriptBridge::RefreshPanel()
    {
        FOrvWebPanelSession* Module = Ports.FindModule();
        if (!Module)
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error,
                    "[Auth] RefreshPanel - Module not available");
            return;
        }
        Module->ReloadPanel();
    }

    void FOrvScriptBridge::RemoveProductFromLibrary(std::string_view ProductID)
    {
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->RemoveProductFromLibrary(ProductID);
        }
    }

    void FOrvScriptBridge::SetSessionToken(std::string_view Token)
    {
        FOrvWebPanelSession* Module = Ports.FindModule();
        if (!Module)
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error,
                    "[Auth] SetSessionToken - Module not available");
            return;
        }
        // A token that could not be stored must not mark the editor signed in.
        if (!Module->StoreSessionToken(Token))
        {
            return;
        }
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->SetLoginState(true);
        }
        Module->InjectCookiesIntoCEF();
        Module->ReloadPanelSoon();
    }

    void FOrvScriptBridge::SignIn(std::string_view Username, std::string_view Password)
    {
        if (IOrvCatalogAccount* Account = FindAccount())
        {
            Account->LoginUser(Username, Password);
        }
    }

    void FOrvScriptBridge::TestOrvEventBus()
    {
        OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Warning, "Orv Bridge - TestOrvEventBus CALLED");
        if (FOrvWebPanelSession* Module = Ports.FindModule())
        {
            Module->EmitEvent("orvbus.test", R"({"status":"okay"})");
        }
    }

    void FOrvScriptBridge::TriggerAuthCheck()
    {
        IOrvCatalogAccount* Account = Ports.FindAccount();
        if (!Account)
        {
            OrvLogf(Ports.Log, BridgeLog, EOrvLogVerbosity::Error,
                    "Orv Bridge - TriggerAuthCheck failed - OrvSubsystem was not valid.");
            return;
        }
        Account->CheckUserLoginState();
    }
} // namespace OrvWebBridge
