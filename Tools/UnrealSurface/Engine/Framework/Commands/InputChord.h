#pragma once

// Engine: Runtime/Slate/Public/Framework/Commands/InputChord.h (module Slate) and the modifier flags of
// Runtime/InputCore/Classes/InputCoreTypes.h (module InputCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FInputChord

#include "InputCoreTypes.h"

/** A key with modifiers; default-constructed it is no chord. */
struct FInputChord
{
    FInputChord();
    FInputChord(const FKey& InKey);
    FInputChord(const EModifierKey::Type InModifierKeys, const FKey& InKey);
};
