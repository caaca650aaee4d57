#pragma once

// Engine: Runtime/Slate/Public/Framework/Commands/Commands.h (module Slate). UI_COMMAND keys the label by
// the command's name and the tooltip by the name and "_ToolTip", in the LOCTEXT_NAMESPACE of the file.
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Commands/TCommands/__ctor?application_version=5.4
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Commands/TCommands?application_version=5.4

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Framework/Commands/UICommandInfo.h"

template <typename CommandContextType> class TCommands : public FBindingContext
{
public:
    TCommands(const FName InContextName, const FText& InContextDesc, const FName InContextParent,
              const FName InStyleSetName);

    /** Makes the one instance and registers its commands (RegisterCommands) with the binding manager. */
    static void Register();
    /** Unregisters the commands and drops the instance: Get() is invalid afterwards. */
    static void Unregister();
    static const CommandContextType& Get();

    virtual void RegisterCommands() = 0;
};

namespace OrvSurface
{
    void MakeUICommand(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* Namespace,
                       const TCHAR* Name, const TCHAR* Label, const TCHAR* Tooltip,
                       const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
                       const FInputChord& InAlternateDefaultChord = FInputChord());
}

// Label and tooltip go through TEXT(), so only string literals pass, as the gatherer needs.
#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...)                 \
    ::OrvSurface::MakeUICommand(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId),                  \
                                TEXT(FriendlyName), TEXT(InDescription), CommandType, InDefaultChord,        \
                                ##__VA_ARGS__)
