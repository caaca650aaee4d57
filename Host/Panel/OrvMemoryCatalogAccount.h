#pragma once

#include "Core/Ports/IOrvCatalogAccount.h"
#include "Core/Ports/IOrvLog.h"
#include "Host/Panel/OrvMemoryDownloadQueue.h"

#include <string>
#include <vector>

namespace OrvWebBridge
{
    class FOrvPanelCatalog;

    /**
     * @brief The catalogue account the host's panel runs against, in memory: user "demo" with password
     * "demo", whose library holds every product of the catalogue once signed in, and a download queue that
     * installs products. Event loop only.
     */
    class FOrvMemoryCatalogAccount : public IOrvCatalogAccount
    {
    public:
        static constexpr const char* DemoUser = "demo";
        static constexpr const char* DemoPassword = "demo";

        FOrvMemoryCatalogAccount(const FOrvPanelCatalog& InCatalog, IOrvTimers& Timers, IOrvLog& InLog);

        /** Where the queue and the library report to (the panel's event relay). */
        void SetEvents(IOrvCatalogAccountEvents* InEvents);

        bool GetLoginState() const override { return bLoggedIn; }
        void SetLoginState(bool bInLoggedIn) override;
        void LoginUser(std::string_view Username, std::string_view Password) override;
        void LogoutUser() override;
        void CheckUserLoginState() override;
        std::string GetCurrentUserJson() const override;
        FOrvLibraryRecord GetLibrary() const override;
        void AddInstalledProductToProject(std::string_view ProductId) override;
        void RemoveProductFromLibrary(std::string_view ProductId) override;
        void ClearLibrary() override;
        void EnqueueDownload(std::string_view AssetId, std::string_view AssetType) override;

        const FOrvMemoryDownloadQueue& GetQueue() const { return Queue; }

    private:
        void SignInAsDemo();
        void Install(const FOrvDownloadQueueEntry& Entry);
        void LibraryChanged();
        bool IsInLibrary(std::string_view ProductId) const;

        const FOrvPanelCatalog& Catalog;
        IOrvLog& Log;
        IOrvCatalogAccountEvents* Events = nullptr;
        FOrvMemoryDownloadQueue Queue;
        bool bLoggedIn = false;
        std::vector<std::string> LibraryIds;   ///< products in the user's library, in catalogue order
        std::vector<std::string> InstalledIds; ///< downloaded products, in download order
    };
} // namespace OrvWebBridge
