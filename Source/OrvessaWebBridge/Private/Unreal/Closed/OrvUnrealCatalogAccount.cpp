#include "Unreal/Closed/OrvUnrealCatalogAccount.h"

#if ORV_WITH_CLOSED_MODULES

#include "Unreal/Closed/OrvClosedAccount.h"
#include "Unreal/OrvUnrealConversions.h"

// ASSUMED (1): the core module's headers for its account subsystem and its download queue are called so.
#include "DownloadQueueManager.h"
#include "OrvSubsystem.h"

namespace OrvWebBridge
{
    namespace
    {
        FString OrvAccountText(std::string_view Utf8)
        {
            return FOrvUnrealConversions::ToFString(Utf8);
        }

        std::string OrvAccountUtf8(const FString& Text)
        {
            return FOrvUnrealConversions::ToUtf8(Text);
        }

        /** Runs Call on the maker's subsystem; nothing without it. */
        template <typename TCall> void OrvWithSubsystem(TCall&& Call)
        {
            if (UOrvSubsystem* Subsystem = OrvClosedFindSubsystem())
            {
                Call(*Subsystem);
            }
        }
    } // namespace

    IOrvCatalogAccount* FOrvUnrealCatalogAccount::Find()
    {
        return OrvClosedFindSubsystem() ? this : nullptr;
    }

    bool FOrvUnrealCatalogAccount::GetLoginState() const
    {
        return OrvClosedIsUserLoggedIn();
    }

    // ASSUMED (4) in each call below: the parameters are FString by const reference and nothing is returned.
    void FOrvUnrealCatalogAccount::SetLoginState(bool bLoggedIn)
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem) { Subsystem.SetLoginState(bLoggedIn); });
    }

    void FOrvUnrealCatalogAccount::LoginUser(std::string_view Username, std::string_view Password)
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem)
                         { Subsystem.LoginUser(OrvAccountText(Username), OrvAccountText(Password)); });
    }

    void FOrvUnrealCatalogAccount::LogoutUser()
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem) { Subsystem.LogoutUser(); });
    }

    void FOrvUnrealCatalogAccount::CheckUserLoginState()
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem) { Subsystem.CheckUserLoginState(); });
    }

    std::string FOrvUnrealCatalogAccount::GetCurrentUserJson() const
    {
        // ASSUMED (5): GetCurrentUser() answers an FOrvTypeUser whose GetDataAsJsonString() is const.
        const UOrvSubsystem* Subsystem = OrvClosedFindSubsystem();
        return Subsystem ? OrvAccountUtf8(Subsystem->GetCurrentUser().GetDataAsJsonString()) : "{}";
    }

    FOrvLibraryRecord FOrvUnrealCatalogAccount::GetLibrary() const
    {
        FOrvLibraryRecord Record;
        const UOrvSubsystem* Subsystem = OrvClosedFindSubsystem();
        if (!Subsystem)
        {
            return Record;
        }
        // ASSUMED (6): the library record's type and field names.
        const FOrvLibraryData& Library = Subsystem->GetLibrary();
        Record.LibraryId = OrvAccountUtf8(Library.LibraryID);
        for (const FOrvLibraryFileData& File : Library.Files)
        {
            Record.Files.push_back({OrvAccountUtf8(File.ProductID), OrvAccountUtf8(File.FileName),
                                    OrvAccountUtf8(File.Name), OrvAccountUtf8(File.AssetType)});
        }
        for (const FOrvInstalledProductData& Product : Library.InstalledProducts)
        {
            FOrvInstalledProduct& Installed = Record.InstalledProducts.emplace_back();
            Installed.ProductName = OrvAccountUtf8(Product.ProductName);
            Installed.BrandName = OrvAccountUtf8(Product.BrandName);
            Installed.ImageUrl = OrvAccountUtf8(Product.ImageUrl);
            Installed.SizeInMB = Product.SizeInMB;
            for (const FOrvInstalledFileData& File : Product.Files)
            {
                Installed.Files.push_back({OrvAccountUtf8(File.Url), File.bDownloaded,
                                           OrvAccountUtf8(File.UnrealPath), OrvAccountUtf8(File.Product),
                                           OrvAccountUtf8(File.Name)});
            }
        }
        return Record;
    }

    void FOrvUnrealCatalogAccount::AddInstalledProductToProject(std::string_view ProductId)
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem)
                         { Subsystem.AddInstalledProductToProject(OrvAccountText(ProductId)); });
    }

    void FOrvUnrealCatalogAccount::RemoveProductFromLibrary(std::string_view ProductId)
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem)
                         { Subsystem.RemoveProductFromLibrary(OrvAccountText(ProductId)); });
    }

    void FOrvUnrealCatalogAccount::ClearLibrary()
    {
        OrvWithSubsystem([&](UOrvSubsystem& Subsystem) { Subsystem.ClearLibrary(); });
    }

    void FOrvUnrealCatalogAccount::EnqueueDownload(std::string_view AssetId, std::string_view AssetType)
    {
        OrvWithSubsystem(
            [&](UOrvSubsystem& Subsystem)
            {
                // ASSUMED (7): GetDownloadManager() answers a pointer, null while there is no download
                // manager.
                if (UDownloadQueueManager* Downloads = Subsystem.GetDownloadManager())
                {
                    Downloads->EnqueueDownload(OrvAccountText(AssetId), OrvAccountText(AssetType));
                }
            });
    }

    FOrvUnrealAccountEvents::FOrvUnrealAccountEvents(IOrvCatalogAccountEvents& Events)
    {
        UOrvSubsystem* Account = OrvClosedFindSubsystem();
        if (!Account)
        {
            return;
        }
        Subsystem = Account;
        // ASSUMED (8): the library notification is a native multicast delegate without parameters.
        LibraryUpdatedHandle =
            Account->OnLibraryUpdated.AddLambda([&Events]() { Events.OnLibraryUpdated(); });
        UDownloadQueueManager* Queue = Account->GetDownloadManager();
        if (!Queue)
        {
            return;
        }
        Downloads = Queue;
        // ASSUMED (3) of the download queue: three native multicast delegates. ASSUMED (2) of the download
        // queue: an entry's asset id comes first, the name shown while it downloads second.
        QueueUpdatedHandle = Queue->OnQueueUpdated.AddLambda(
            [&Events](const TArray<FDownloadQueueEntry>& Entries)
            {
                std::vector<FOrvDownloadQueueEntry> Converted;
                for (const FDownloadQueueEntry& Entry : Entries)
                {
                    Converted.push_back({OrvAccountUtf8(Entry.AssetID), OrvAccountUtf8(Entry.DisplayName)});
                }
                Events.OnDownloadQueueUpdated(Converted);
            });
        ProgressHandle = Queue->OnDownloadProgress.AddLambda([&Events](float Progress)
                                                             { Events.OnDownloadProgress(Progress); });
        QueueFinishedHandle =
            Queue->OnQueueFinished.AddLambda([&Events]() { Events.OnDownloadQueueFinished(); });
    }

    FOrvUnrealAccountEvents::~FOrvUnrealAccountEvents()
    {
        // Whatever of the maker's objects still exists forgets the handlers before Events goes.
        if (UDownloadQueueManager* Queue = Downloads.Get())
        {
            Queue->OnQueueUpdated.Remove(QueueUpdatedHandle);
            Queue->OnDownloadProgress.Remove(ProgressHandle);
            Queue->OnQueueFinished.Remove(QueueFinishedHandle);
        }
        if (UOrvSubsystem* Account = Subsystem.Get())
        {
            Account->OnLibraryUpdated.Remove(LibraryUpdatedHandle);
        }
    }
} // namespace OrvWebBridge

#endif
