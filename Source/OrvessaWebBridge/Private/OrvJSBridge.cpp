#include "OrvJSBridge.h"

#include "OrvessaWebBridge.h"

#include "Core/Bridge/OrvScriptBridge.h"
#include "Unreal/OrvUnrealConversions.h"

using OrvWebBridge::FOrvScriptBridge;
using OrvWebBridge::FOrvUnrealConversions;

namespace
{
    /** The plugin's script bridge; null once the module has gone (a page can outlive it at shut-down). */
    FOrvScriptBridge* OrvJSBridgeCore()
    {
        FOrvessaWebBridgeModule* Module = FOrvessaWebBridgeModule::GetLoaded();
        return Module ? Module->GetScriptBridge() : nullptr;
    }

    /** Runs Call on the plugin's script bridge; nothing once the module has gone. */
    template <typename TCall> void OrvJSBridgeForward(TCall&& Call)
    {
        if (FOrvScriptBridge* Bridge = OrvJSBridgeCore())
        {
            Call(*Bridge);
        }
    }

    std::string OrvJSBridgeUtf8(const FString& Text)
    {
        return FOrvUnrealConversions::ToUtf8(Text);
    }

    /** What a JSON-answering function gives a page whose plugin has gone: the account-less answer. */
    FString OrvJSBridgeJson(FOrvScriptBridge* Bridge, std::string (FOrvScriptBridge::*Function)())
    {
        return Bridge ? FOrvUnrealConversions::ToFString((Bridge->*Function)()) : FString(TEXT("{}"));
    }
} // namespace

void UOrvJSBridge::AddAssetDownload(const FString& AssetID, const FString& AssetType)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge)
                       { Bridge.AddAssetDownload(OrvJSBridgeUtf8(AssetID), OrvJSBridgeUtf8(AssetType)); });
}

void UOrvJSBridge::AddProductToProject(const FString& ProductID)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge)
                       { Bridge.AddProductToProject(OrvJSBridgeUtf8(ProductID)); });
}

void UOrvJSBridge::ClearLibraryData()
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.ClearLibraryData(); });
}

FString UOrvJSBridge::GetLibraryInfo()
{
    return OrvJSBridgeJson(OrvJSBridgeCore(), &FOrvScriptBridge::GetLibraryInfo);
}

FString UOrvJSBridge::GetUserDetails()
{
    return OrvJSBridgeJson(OrvJSBridgeCore(), &FOrvScriptBridge::GetUserDetails);
}

bool UOrvJSBridge::IsCoreAuthorized()
{
    FOrvScriptBridge* Bridge = OrvJSBridgeCore();
    return Bridge && Bridge->IsCoreAuthorized();
}

void UOrvJSBridge::LogoutUser()
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.LogoutUser(); });
}

void UOrvJSBridge::OpenExternalURL(const FString& URL)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.OpenExternalURL(OrvJSBridgeUtf8(URL)); });
}

void UOrvJSBridge::OpenOAuthPopup(const FString& URL)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.OpenOAuthPopup(OrvJSBridgeUtf8(URL)); });
}

void UOrvJSBridge::RefreshPanel()
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.RefreshPanel(); });
}

void UOrvJSBridge::RemoveProductFromLibrary(const FString& ProductID)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge)
                       { Bridge.RemoveProductFromLibrary(OrvJSBridgeUtf8(ProductID)); });
}

void UOrvJSBridge::SetSessionToken(const FString& Token)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.SetSessionToken(OrvJSBridgeUtf8(Token)); });
}

void UOrvJSBridge::SignIn(const FString& Username, const FString& Password)
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge)
                       { Bridge.SignIn(OrvJSBridgeUtf8(Username), OrvJSBridgeUtf8(Password)); });
}

void UOrvJSBridge::TestOrvEventBus()
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.TestOrvEventBus(); });
}

void UOrvJSBridge::TriggerAuthCheck()
{
    OrvJSBridgeForward([&](FOrvScriptBridge& Bridge) { Bridge.TriggerAuthCheck(); });
}
