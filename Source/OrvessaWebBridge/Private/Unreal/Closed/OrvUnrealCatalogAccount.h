#pragma once

#include "CoreMinimal.h"

#include "UObject/WeakObjectPtrTemplates.h"

#include "Core/Ports/IOrvCatalogAccount.h"

#if ORV_WITH_CLOSED_MODULES
class UDownloadQueueManager;
class UOrvSubsystem;
#endif

namespace OrvWebBridge
{
#if ORV_WITH_CLOSED_MODULES
    /**
     * @brief IOrvCatalogAccount over the maker's UOrvSubsystem and its download manager. The subsystem is
     * found again on every call, since it can be missing or made anew; Find answers this adapter only while
     * it exists. Game thread.
     */
    class FOrvUnrealCatalogAccount final : public IOrvCatalogAccount
    {
    public:
        /** This account while the maker's subsystem exists; null otherwise. */
        IOrvCatalogAccount* Find();

        virtual bool GetLoginState() const override;
        virtual void SetLoginState(bool bLoggedIn) override;
        virtual void LoginUser(std::string_view Username, std::string_view Password) override;
        virtual void LogoutUser() override;
        virtual void CheckUserLoginState() override;
        virtual std::string GetCurrentUserJson() const override;
        virtual FOrvLibraryRecord GetLibrary() const override;
        virtual void AddInstalledProductToProject(std::string_view ProductId) override;
        virtual void RemoveProductFromLibrary(std::string_view ProductId) override;
        virtual void ClearLibrary() override;
        virtual void EnqueueDownload(std::string_view AssetId, std::string_view AssetType) override;
    };

    /**
     * @brief While it lives, Events hears the download manager's queue, progress and finish and the
     * subsystem's library changes; it hears nothing of a subsystem or download manager missing when it is
     * made. Game thread.
     */
    class FOrvUnrealAccountEvents
    {
    public:
        explicit FOrvUnrealAccountEvents(IOrvCatalogAccountEvents& Events);
        ~FOrvUnrealAccountEvents();
        FOrvUnrealAccountEvents(const FOrvUnrealAccountEvents&) = delete;
        FOrvUnrealAccountEvents& operator=(const FOrvUnrealAccountEvents&) = delete;

    private:
        TWeakObjectPtr<UOrvSubsystem> Subsystem;
        TWeakObjectPtr<UDownloadQueueManager> Downloads;
        FDelegateHandle QueueUpdatedHandle;
        FDelegateHandle ProgressHandle;
        FDelegateHandle QueueFinishedHandle;
        FDelegateHandle LibraryUpdatedHandle;
    };
#else
    /** Without the maker's core module there is no account: the bridge answers its defaults and warns. */
    class FOrvUnrealCatalogAccount
    {
    public:
        IOrvCatalogAccount* Find() { return nullptr; }
    };

    /** Without the maker's core module there is nothing to hear. */
    class FOrvUnrealAccountEvents
    {
    public:
        explicit FOrvUnrealAccountEvents(IOrvCatalogAccountEvents&) {}
    };
#endif
} // namespace OrvWebBridge
