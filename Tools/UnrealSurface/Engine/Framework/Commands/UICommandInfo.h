#pragma once

// Engine: Runtime/Slate/Public/Framework/Commands/UICommandInfo.h (module Slate).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/FBindingContext/__ctor

#include "CoreMinimal.h"

enum class EUserInterfaceActionType : uint8
{
    None,
    Button,
    ToggleButton,
    RadioButton,
    Check,
    CollapsedButton,
};

/** A named set of commands (a binding context), with its description and the style set of its icons. */
class FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
    FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent,
                    const FName InStyleSetName);
    virtual ~FBindingContext();
};

/** One command: label, tooltip, icon and default chord, made by UI_COMMAND. */
class FUICommandInfo
{
};
