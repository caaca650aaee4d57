#pragma once

// Engine: Runtime/Slate/Public/Framework/Commands/UIAction.h (module Slate).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FUIAction

#include "CoreMinimal.h"

DECLARE_DELEGATE(FExecuteAction)

enum class EUIActionRepeatMode : uint8
{
    RepeatDisabled,
    RepeatEnabled,
};

struct FUIAction
{
    FUIAction();
    FUIAction(FExecuteAction InitExecuteAction,
              EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
};
