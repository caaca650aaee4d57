#include "OrvCatalogPanel.h"

#include "OrvCatalogBrowser.h"
#include "OrvJSBridge.h"
#include "OrvessaWebBridge.h"

#include "SWebBrowser.h"
#include "UObject/UObjectGlobals.h"

#include "Unreal/OrvUnrealWebPanel.h"

namespace OrvWebBridge
{
    namespace
    {
        /** The page's name for the bridge object: window.ue.orvbridge. */
        const TCHAR* const OrvCatalogBridgeName = TEXT("OrvBridge");
    } // namespace

    FOrvCatalogPanel::FOrvCatalogPanel(FOrvWebPanelService& PanelService, FOrvUnrealWebPanel& InWebPanel,
                                       std::function<IOrvCatalogApi*()> FindApi, IOrvLog& Log)
        : WebPanel(InWebPanel),
          Session({PanelService, Windows, std::move(FindApi), [this] { return Cookies.Find(); }, Log},
                  FOrvCatalogSite::Orvessa()),
          Relay(Session, Log),
          Bridge({[this] { return Account.Find(); },
                  // The module's services only while the module is loaded, as the page's calls expect.
                  [this]() -> FOrvWebPanelSession*
                  { return FOrvessaWebBridgeModule::GetLoaded() ? &Session : nullptr; },
                  Windows, Log})
    {
    }

    FOrvCatalogPanel::~FOrvCatalogPanel()
    {
        Close();
    }

    TSharedRef<SWidget> FOrvCatalogPanel::MakeBrowser()
    {
        const TSharedRef<SOrvCatalogBrowser> Widget = SNew(SOrvCatalogBrowser);
        SetBrowser(Widget->GetBrowser());
        return Widget;
    }

    void FOrvCatalogPanel::SetBrowser(TSharedPtr<SWebBrowser> Browser)
    {
        Close();
        if (Browser.IsValid())
        {
            Open(Browser.ToSharedRef());
        }
    }

    void FOrvCatalogPanel::Open(const TSharedRef<SWebBrowser>& Browser)
    {
        WebPanel.SetBrowser(Browser);
        // Nothing else refers to the bridge object, so it is rooted or the garbage collector would take it.
        // The engine's default outer is the transient package.
        JSBridge = NewObject<UOrvJSBridge>();
        JSBridge->AddToRoot();
        // Permanent: the binding outlives navigation, so every page of the site finds it.
        Browser->BindUObject(OrvCatalogBridgeName, JSBridge, /*bIsPermanent=*/true);
        AccountEvents = MakeUnique<FOrvUnrealAccountEvents>(Relay);
        // The browser's cookie store confirms each cookie later; the site is loaded only after the last
        // confirmation, so its first request already carries the session.
        Session.OpenSite();
    }

    void FOrvCatalogPanel::Close()
    {
        AccountEvents.Reset();
        if (JSBridge)
        {
            // At editor exit the object system may already be down, and the object with it.
            if (UObjectInitialized())
            {
                if (const TSharedPtr<SWebBrowser> Browser = WebPanel.GetBrowser())
                {
                    Browser->UnbindUObject(OrvCatalogBridgeName, JSBridge, /*bIsPermanent=*/true);
                }
                JSBridge->RemoveFromRoot();
            }
            JSBridge = nullptr;
        }
        WebPanel.SetBrowser(nullptr);
    }
} // namespace OrvWebBridge
