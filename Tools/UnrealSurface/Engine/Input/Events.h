#pragma once

// Engine: Runtime/SlateCore/Public/Input/Events.h (module SlateCore). Events are immutable once made.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FKeyEvent
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/SlateCore/Input/FInputEvent/IsLeftAltDown?application_version=5.4

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

struct FInputEvent
{
    virtual ~FInputEvent();

    bool IsLeftAltDown() const;
    bool IsRightAltDown() const;
    /** Either Control key. */
    bool IsControlDown() const;
    /** Either Shift key. */
    bool IsShiftDown() const;
};

struct FKeyEvent : public FInputEvent
{
    /** The key, as the keyboard layout maps it. */
    FKey GetKey() const;
    /** The character the key typed; 0 when it typed none. */
    uint32 GetCharacter() const;
    /** The key code from the hardware, before any mapping. */
    uint32 GetKeyCode() const;
};
