#pragma once

#include "Core/Bridge/OrvScriptBridge.h"
#include "Core/Bridge/OrvWebPanelSession.h"
#include "Tests/Support/OrvFakeWebPanel.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <functional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A catalogue account that notes every call in the shared journal. */
    class FOrvFakeCatalogAccount : public IOrvCatalogAccount
    {
    public:
        explicit FOrvFakeCatalogAccount(std::vector<std::string>& InJournal) : Journal(InJournal) {}

        bool GetLoginState() const override { return bLoggedIn; }
        void SetLoginState(bool bIn) override
        {
            Note(bIn ? "account: login state true" : "account: login state false");
        }
        void LoginUser(std::string_view User, std::string_view Password) override
        {
            Note("account: login " + std::string(User) + "/" + std::string(Password));
        }
        void LogoutUser() override { Note("account: logout"); }
        void CheckUserLoginState() override { Note("account: check"); }
        std::string GetCurrentUserJson() const override { return R"({"username":"demo"})"; }
        FOrvLibraryRecord GetLibrary() const override { return Library; }
        void AddInstalledProductToProject(std::string_view Id) override
        {
            Note("account: add " + std::string(Id));
        }
        void RemoveProductFromLibrary(std::string_view Id) override
        {
            Note("account: remove " + std::string(Id));
        }
        void ClearLibrary() override { Note("account: clear"); }
        void EnqueueDownload(std::string_view Id, std::string_view Type) override
        {
            Note("account: enqueue " + std::string(Id) + " " + std::string(Type));
        }

        bool bLoggedIn = false;
        FOrvLibraryRecord Library;

    private:
        void Note(std::string Entry) { Journal.push_back(std::move(Entry)); }
        std::vector<std::string>& Journal;
    };

    /** @brief The API client's cookie jar. */
    class FOrvFakeCookieJar : public IOrvCatalogApi
    {
    public:
        explicit FOrvFakeCookieJar(std::vector<std::string>& InJournal) : Journal(InJournal) {}

        void Post(std::string_view, std::string, FOrvApiCallback OnComplete) override
        {
            OnComplete(false, nullptr);
        }
        std::vector<FOrvCookie> GetCookies() const override { return Cookies; }
        void SetCookie(const FOrvCookie& Cookie) override
        {
            Journal.push_back("jar: " + Cookie.Name + "=" + Cookie.Value);
            Cookies.push_back(Cookie);
        }

        std::vector<FOrvCookie> Cookies;

    private:
        std::vector<std::string>& Journal;
    };

    /** @brief The browser's cookie store; completions wait until the test releases them. */
    class FOrvFakeBrowserCookies : public IOrvBrowserCookies
    {
    public:
        explicit FOrvFakeBrowserCookies(std::vector<std::string>& InJournal) : Journal(InJournal) {}

        void SetCookie(std::string_view Url, const FOrvBrowserCookie& Cookie,
                       std::function<void(bool)> OnDone) override
        {
            Journal.push_back("browser: set " + Cookie.Name + " for " + std::string(Url));
            Set.push_back(Cookie);
            Pending.push_back([OnDone = std::move(OnDone)] { OnDone(true); });
        }
        void DeleteAllCookies(std::function<void(int)> OnDone) override
        {
            Journal.push_back("browser: delete all");
            Pending.push_back([OnDone = std::move(OnDone)] { OnDone(3); });
        }

        /** Runs the completions the store owes, in order. */
        void Complete()
        {
            auto Owed = std::move(Pending);
            Pending.clear();
            for (auto& Done : Owed)
            {
                Done();
            }
        }

        std::vector<FOrvBrowserCookie> Set;
        std::vector<std::function<void()>> Pending;

    private:
        std::vector<std::string>& Journal;
    };

    /** @brief The system browser and popups. */
    class FOrvFakeBrowserWindows : public IOrvBrowserWindows
    {
    public:
        void LaunchUrl(std::string_view Url) override { Launched.emplace_back(Url); }
        FOrvPopupHandle OpenPopup(std::string_view Title, std::string_view Url,
                                  std::function<void(const std::string&)> InOnUrlChanged) override
        {
            if (!bCanOpenPopups)
            {
                return {};
            }
            PopupTitle = Title;
            PopupUrl = Url;
            OnUrlChanged = std::move(InOnUrlChanged);
            return {++LastPopup};
        }
        void ClosePopup(FOrvPopupHandle Popup) override
        {
            if (Popup.Value == LastPopup && OnUrlChanged)
            {
                OnUrlChanged = nullptr;
                ++Closed;
            }
        }

        bool bCanOpenPopups = true;
        std::vector<std::string> Launched;
        std::string PopupTitle;
        std::string PopupUrl;
        std::function<void(const std::string&)> OnUrlChanged; ///< empty while no popup is open
        std::uint64_t LastPopup = 0;
        int Closed = 0;
    };

    /** @brief The panel, noting what it runs and loads in the shared journal too. */
    class FOrvJournalWebPanel : public FOrvFakeWebPanel
    {
    public:
        explicit FOrvJournalWebPanel(std::vector<std::string>& InJournal) : Journal(InJournal) {}

        void LoadUrl(std::string_view Url) override
        {
            Journal.push_back("panel: load " + std::string(Url));
            FOrvFakeWebPanel::LoadUrl(Url);
        }
        void ExecuteJavascript(std::string_view Script) override
        {
            Journal.push_back("panel: run " + std::string(Script));
            FOrvFakeWebPanel::ExecuteJavascript(Script);
        }

    private:
        std::vector<std::string>& Journal;
    };

    /**
     * @brief The bridge and the module's session services over fakes. Each fake notes its calls in one
     * journal so tests can check their order; the account, the jar, the module and the cookie store can be
     * taken away.
     */
    struct FOrvBridgeTestRig
    {
        FOrvBridgeTestRig();

        std::vector<std::string> Journal;
        FOrvRecordingLog Log;
        FOrvJournalWebPanel Panel{Journal};
        FOrvWebPanelService PanelService{Panel, Log};
        FOrvFakeCatalogAccount Account{Journal};
        FOrvFakeCookieJar Jar{Journal};
        FOrvFakeBrowserCookies Cookies{Journal};
        FOrvFakeBrowserWindows Windows;
        FOrvBrowserCookiesLookup CookiesLookup{&Cookies, EOrvBrowserCookiesMissing::None};
        bool bHasAccount = true;
        bool bHasJar = true;
        bool bHasModule = true;
        FOrvWebPanelSession Session;
        FOrvScriptBridge Bridge;
    };
} // namespace OrvWebBridge
