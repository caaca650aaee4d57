#pragma once

// Engine: Runtime/Slate/Public/Framework/Application/IInputProcessor.h (module Slate). Registered
// pre-processors see every input event before any widget; a handler returning true consumes the event.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/IInputProcessor

#include "CoreMinimal.h"

class FSlateApplication;
class ICursor;

class IInputProcessor
{
public:
    IInputProcessor();
    virtual ~IInputProcessor();

    virtual void Tick(const float DeltaTime, FSlateApplication& SlateApp, TSharedRef<ICursor> Cursor) = 0;
    /** Debug name for logging purposes. */
    virtual const TCHAR* GetDebugName() const;
};
