#include "Host/Panel/OrvMemoryCatalogAccount.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvLogging.h"
#include "Host/Panel/OrvPanelCatalog.h"

#include <algorithm>

namespace OrvWebBridge
{
    namespace
    {
        constexpr EOrvLogCategory Temp = EOrvLogCategory::LogTemp;
        constexpr const char* DemoUserJson =
            R"({"id":"usr-demo","username":"demo","name":"Demo Designer","email":"demo@orvessa.example"})";

        bool OrvRemoveId(std::vector<std::string>& Ids, std::string_view Id)
        {
            const auto Found = std::find(Ids.begin(), Ids.end(), Id);
            if (Found == Ids.end())
            {
                return false;
            }
            Ids.erase(Found);
            return true;
        }
    } // namespace

    FOrvMemoryCatalogAccount::FOrvMemoryCatalogAccount(const FOrvPanelCatalog& InCatalog, IOrvTimers& Timers,
                                                       IOrvLog& InLog)
        : Catalog(InCatalog), Log(InLog),
          Queue(Timers, [this](const FOrvDownloadQueueEntry& Entry) { Install(Entry); })
    {
    }

    void FOrvMemoryCatalogAccount::SetEvents(IOrvCatalogAccountEvents* InEvents)
    {
        Events = InEvents;
        Queue.SetEvents(InEvents);
    }

    void FOrvMemoryCatalogAccount::SetLoginState(bool bInLoggedIn)
    {
        if (bInLoggedIn && !bLoggedIn)
        {
            SignInAsDemo();
        }
        else if (!bInLoggedIn && bLoggedIn)
        {
            LogoutUser();
        }
    }

    void FOrvMemoryCatalogAccount::LoginUser(std::string_view Username, std::string_view Password)
    {
        if (Username != DemoUser || Password != DemoPassword)
        {
            OrvLogf(Log, Temp, EOrvLogVerbosity::Warning,
                    "OrvCore (host): sign-in refused for user \"%.*s\": wrong user name or password",
                    static_cast<int>(Username.size()), Username.data());
            return;
        }
        SignInAsDemo();
    }

    void FOrvMemoryCatalogAccount::SignInAsDemo()
    {
        bLoggedIn = true;
        LibraryIds.clear();
        for (const FOrvPanelProduct& Product : Catalog.GetProducts())
        {
            LibraryIds.push_back(Product.Id);
        }
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log,
                "OrvCore (host): signed in as %s, %d products in the library", DemoUser,
                static_cast<int>(LibraryIds.size()));
        LibraryChanged();
    }

    void FOrvMemoryCatalogAccount::LogoutUser()
    {
        const bool bWasLoggedIn = bLoggedIn;
        bLoggedIn = false;
        Queue.Cancel();
        LibraryIds.clear();
        InstalledIds.clear();
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log, "OrvCore (host): signed out");
        if (bWasLoggedIn)
        {
            LibraryChanged();
        }
    }

    void FOrvMemoryCatalogAccount::CheckUserLoginState()
    {
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log, "OrvCore (host): session checked, %s",
                bLoggedIn ? "signed in" : "signed out");
    }

    std::string FOrvMemoryCatalogAccount::GetCurrentUserJson() const
    {
        return bLoggedIn ? DemoUserJson : "{}";
    }

    FOrvLibraryRecord FOrvMemoryCatalogAccount::GetLibrary() const
    {
        FOrvLibraryRecord Library;
        if (!bLoggedIn)
        {
            return Library;
        }
        Library.LibraryId = "lib-demo";
        for (const std::string& Id : LibraryIds)
        {
            if (const FOrvPanelProduct* Product = Catalog.FindProduct(Id))
            {
                Library.Files.push_back({Id, Id + ".zip", Product->Name, "product"});
            }
        }
        for (const std::string& Id : InstalledIds)
        {
            const FOrvPanelProduct* Product = Catalog.FindProduct(Id);
            const std::string MeshPath = std::string(FOrvConstants::AssetRoot) + "/" + Id + "/SM_" + Id;
            Library.InstalledProducts.push_back(
                {Product->Name,
                 Product->Brand,
                 "",
                 12.5,
                 {{"/downloads/" + Id + ".zip", true, MeshPath, Id, "SM_" + Id}}});
        }
        return Library;
    }

    void FOrvMemoryCatalogAccount::AddInstalledProductToProject(std::string_view ProductId)
    {
        if (std::find(InstalledIds.begin(), InstalledIds.end(), ProductId) == InstalledIds.end())
        {
            OrvLogf(Log, Temp, EOrvLogVerbosity::Warning,
                    "OrvCore (host): cannot add %.*s to the project: it is not installed; download it first",
                    static_cast<int>(ProductId.size()), ProductId.data());
            return;
        }
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log, "OrvCore (host): added %.*s to the project",
                static_cast<int>(ProductId.size()), ProductId.data());
    }

    void FOrvMemoryCatalogAccount::RemoveProductFromLibrary(std::string_view ProductId)
    {
        const bool bRemoved = OrvRemoveId(LibraryIds, ProductId);
        const bool bUninstalled = OrvRemoveId(InstalledIds, ProductId);
        if (!bRemoved && !bUninstalled)
        {
            OrvLogf(Log, Temp, EOrvLogVerbosity::Warning, "OrvCore (host): %.*s is not in the library",
                    static_cast<int>(ProductId.size()), ProductId.data());
            return;
        }
        LibraryChanged();
    }

    void FOrvMemoryCatalogAccount::ClearLibrary()
    {
        LibraryIds.clear();
        InstalledIds.clear();
        LibraryChanged();
    }

    void FOrvMemoryCatalogAccount::EnqueueDownload(std::string_view AssetId, std::string_view AssetType)
    {
        const FOrvPanelProduct* Product = Catalog.FindProduct(AssetId);
        const char* Refusal = !bLoggedIn                ? "nobody is signed in"
                              : AssetType != "product"  ? "only the asset type \"product\" can be downloaded"
                              : !Product                ? "the catalogue has no such product"
                              : Queue.Contains(AssetId) ? "it is already queued"
                                                        : nullptr;
        if (Refusal)
        {
            OrvLogf(Log, Temp, EOrvLogVerbosity::Warning,
                    "OrvCore (host): download of \"%.*s\" (%.*s) not queued: %s",
                    static_cast<int>(AssetId.size()), AssetId.data(), static_cast<int>(AssetType.size()),
                    AssetType.data(), Refusal);
            return;
        }
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log, "OrvCore (host): queued download of %s (%s)",
                Product->Id.c_str(), Product->Name.c_str());
        Queue.Enqueue({Product->Id, Product->Name});
    }

    void FOrvMemoryCatalogAccount::Install(const FOrvDownloadQueueEntry& Entry)
    {
        OrvRemoveId(InstalledIds, Entry.AssetId);
        InstalledIds.push_back(Entry.AssetId);
        if (!IsInLibrary(Entry.AssetId))
        {
            LibraryIds.push_back(Entry.AssetId);
        }
        OrvLogf(Log, Temp, EOrvLogVerbosity::Log, "OrvCore (host): downloaded %s", Entry.AssetId.c_str());
        LibraryChanged();
    }

    bool FOrvMemoryCatalogAccount::IsInLibrary(std::string_view ProductId) const
    {
        return std::find(LibraryIds.begin(), LibraryIds.end(), ProductId) != LibraryIds.end();
    }

    void FOrvMemoryCatalogAccount::LibraryChanged()
    {
        if (Events)
        {
            Events->OnLibraryUpdated();
        }
    }
} // namespace OrvWebBridge
