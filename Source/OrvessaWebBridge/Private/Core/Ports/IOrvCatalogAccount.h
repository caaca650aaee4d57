#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One file of the user's library. */
    struct FOrvLibraryFile
    {
        std::string ProductId;
        std::string FileName;
        std::string Name;
        std::string AssetType;
    };

    /** @brief One file of an installed product. */
    struct FOrvInstalledFile
    {
        std::string Url;
        bool bDownloaded = false;
        std::string UnrealPath;
        std::string Product;
        std::string Name;
    };

    /** @brief One product installed from the library. */
    struct FOrvInstalledProduct
    {
        std::string ProductName;
        std::string BrandName;
        std::string ImageUrl;
        double SizeInMB = 0.0;
        std::vector<FOrvInstalledFile> Files;
    };

    /** @brief The signed-in user's library as the catalogue account holds it. */
    struct FOrvLibraryRecord
    {
        std::string LibraryId;
        std::vector<FOrvLibraryFile> Files;
        std::vector<FOrvInstalledProduct> InstalledProducts;
    };

    /** @brief One entry of the download queue: its asset id and the name shown while it downloads. */
    struct FOrvDownloadQueueEntry
    {
        std::string AssetId;
        std::string DisplayName;
    };

    /**
     * @brief Where the account's download queue and library report to (the delegates the catalogue tab
     * subscribes to). Game thread.
     */
    class IOrvCatalogAccountEvents
    {
    public:
        virtual ~IOrvCatalogAccountEvents() = default;

        /** The queue changed; Queue lists what is left, the current download first (it may be empty). */
        virtual void OnDownloadQueueUpdated(const std::vector<FOrvDownloadQueueEntry>& Queue) = 0;

        /** The current download progressed. */
        virtual void OnDownloadProgress(double Progress) = 0;

        /** The queue has worked through every entry. */
        virtual void OnDownloadQueueFinished() = 0;

        /** The user's library changed. */
        virtual void OnLibraryUpdated() = 0;
    };

    /**
     * @brief The catalogue account of the maker's core module (UOrvSubsystem, its download manager and the
     * current FOrvTypeUser), one method per call the plugin makes. It mirrors one closed class so that its
     * adapter stays one line per method. Game thread.
     */
    class IOrvCatalogAccount
    {
    public:
        virtual ~IOrvCatalogAccount() = default;

        /** Whether a user is signed in (GetLoginState). */
        virtual bool GetLoginState() const = 0;

        /** Marks the session signed in or out (SetLoginState). */
        virtual void SetLoginState(bool bLoggedIn) = 0;

        /** Signs in with a user name and password (LoginUser). */
        virtual void LoginUser(std::string_view Username, std::string_view Password) = 0;

        /** Signs the user out (LogoutUser). */
        virtual void LogoutUser() = 0;

        /** Asks the service whether the session is still signed in (CheckUserLoginState). */
        virtual void CheckUserLoginState() = 0;

        /** The current user as JSON text (GetCurrentUser().GetDataAsJsonString()). */
        virtual std::string GetCurrentUserJson() const = 0;

        /** The user's library record. */
        virtual FOrvLibraryRecord GetLibrary() const = 0;

        /** Adds an installed product to the open project (AddInstalledProductToProject). */
        virtual void AddInstalledProductToProject(std::string_view ProductId) = 0;

        /** Removes a product from the user's library (RemoveProductFromLibrary). */
        virtual void RemoveProductFromLibrary(std::string_view ProductId) = 0;

        /** Empties the user's library (ClearLibrary). */
        virtual void ClearLibrary() = 0;

        /** Queues an asset for download (GetDownloadManager()->EnqueueDownload). */
        virtual void EnqueueDownload(std::string_view AssetId, std::string_view AssetType) = 0;
    };
} // namespace OrvWebBridge
