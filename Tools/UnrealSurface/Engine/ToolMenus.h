#pragma once

// Engine: Developer/ToolMenus/Public/ToolMenus.h (module ToolMenus), which brings in ToolMenu.h,
// ToolMenuSection.h, ToolMenuEntry.h, ToolMenuOwner.h, ToolMenuDelegates.h and ToolMenuMisc.h of the same
// folder: the declarations below come from those, each named where it is. Menus and entries registered
// inside an FToolMenuOwnerScoped belong to that owner, and UnregisterOwner removes them all. Start-up
// callbacks do not run in commandlets or without Slate.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/ToolMenus/UToolMenu/FindOrAddSection
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/ToolMenus/UToolMenu/AddSection
//   https://dev.epicgames.com/documentation/unreal-engine/API/Developer/ToolMenus/FToolMenuEntry/InitComboButton?application_version=5.4
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/ToolMenus/FToolMenuSection
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/ToolMenus/UToolMenus
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Developer/ToolMenus/FToolMenuOwnerScoped

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "UObject/Object.h"

class UToolMenu;

// ToolMenuOwner.h: who registered a menu or entry; made from any pointer or a name.
struct FToolMenuOwner
{
    FToolMenuOwner();
    FToolMenuOwner(const void* InPointer);
    FToolMenuOwner(const FName InName);
};

// ToolMenus.h: makes Owner the owner of what is registered while it lives.
struct FToolMenuOwnerScoped
{
    FToolMenuOwnerScoped(const FToolMenuOwner InOwner);
    ~FToolMenuOwnerScoped();
};

// ToolMenuMisc.h: where a section or entry goes; by default at the end.
struct FToolMenuInsert
{
    FToolMenuInsert();
};

// ToolMenuDelegates.h: fills a sub-menu when it opens.
DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*)

    // ToolMenuDelegates.h: an entry's action, from an FUIAction (or a command list's, not used here).
    struct FToolUIActionChoice
{
    FToolUIActionChoice();
    FToolUIActionChoice(const FUIAction& InAction);
};

// ToolMenuDelegates.h: what fills a combo button's menu.
struct FNewToolMenuChoice
{
    FNewToolMenuChoice();
    FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenuDelegate);
};

// ToolMenuEntry.h
struct FToolMenuEntry
{
    /** A toolbar combo button whose menu InMenuContentGenerator fills when it opens. */
    static FToolMenuEntry
    InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
                    const FNewToolMenuChoice& InMenuContentGenerator,
                    const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
                    const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
                    const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
                    bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);
};

// ToolMenuSection.h
struct FToolMenuSection
{
    FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);
    FToolMenuEntry&
    AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
                 const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
                 const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
                 const FName InTutorialHighlightName = NAME_None);
};

// ToolMenu.h
class UToolMenu : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UToolMenu, UObject)

    /** The section of that name; made (at the end) when the menu has none yet. */
    FToolMenuSection& FindOrAddSection(const FName SectionName);
    FToolMenuSection& AddSection(const FName SectionName,
                                 const TAttribute<FText>& InLabel = TAttribute<FText>(),
                                 const FToolMenuInsert InPosition = FToolMenuInsert());
};

// ToolMenus.h
class UToolMenus : public UObject
{
    ORV_SURFACE_UCLASS_BODY(UToolMenus, UObject)

    static UToolMenus* Get();
    /** The menu of that name, registered empty if it does not exist yet, to be extended. */
    UToolMenu* ExtendMenu(const FName Name);

    /** Runs the delegate once ToolMenus is ready (at once when it already is). */
    static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
    static void UnRegisterStartupCallback(FDelegateHandle InHandle);
    /** Removes every menu, section and entry that Owner registered. */
    static void UnregisterOwner(FToolMenuOwner Owner);
};
