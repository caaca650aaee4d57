#pragma once

// Engine: Runtime/Slate/Public/Framework/Docking/TabManager.h (module Slate). Nomad tab spawners are
// registered with the global tab manager by tab id; saved layouts reopen tabs by that id.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FGlobalTabmanager
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Docking/FGlobalTabmanager/Get?application_version=5.4
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Docking/FGlobalTabmanager/GetRootWindow?application_version=5.4
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FTabSpawnerEntry
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FTabManager/TryInvokeTab

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"

class SDockTab;
class SWindow;
class FSpawnTabArgs;

struct FTabId
{
    FTabId(const FName InTabType);
};

DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&)
    DECLARE_DELEGATE_RetVal_OneParam(bool, FCanSpawnTab, const FSpawnTabArgs&)

        namespace ETabSpawnerMenuType
{
    enum Type : int
    {
        Enabled,
        Disabled,
        Hidden,
    };
} // namespace ETabSpawnerMenuType

/** What a registered spawner is listed as; the setters chain. */
class FTabSpawnerEntry
{
public:
    FTabSpawnerEntry& SetDisplayName(const FText& InLegibleName);
    FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon);
    FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType);
};

class FTabManager : public TSharedFromThis<FTabManager>
{
public:
    /** Opens the tab, or brings it to the front when it is open; null when it cannot be spawned. */
    TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive = false);
};

class FGlobalTabmanager : public FTabManager
{
public:
    static const TSharedRef<FGlobalTabmanager>& Get();

    FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab,
                                              const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
    bool UnregisterNomadTabSpawner(const FName TabId);

    /** The editor's main window: the parent for modal dialogs. */
    TSharedPtr<SWindow> GetRootWindow() const;
};
