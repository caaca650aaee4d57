#pragma once

// Engine: Runtime/Slate/Public/Framework/Application/IInputProcessor.h (module Slate). Registered
// pre-processors see every input event before any widget; a handler returning true consumes the event.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/IInputProcessor

#include "CoreMinimal.h"

class FSlateApplication;
class ICursor;
struct FKeyEvent;

class IInputProcessor
{
public:
    IInputProcessor();
    virtual ~IInputProcessor();

    virtual void Tick(const float DeltaTime, FSlateApplication& SlateApp, TSharedRef<ICursor> Cursor) = 0;
    /** Key down input; true consumes the key. Docs:
     *  https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/Slate/Framework/Application/IInputProcessor/HandleKeyDownEvent?application_version=5.5
     */
    virtual bool HandleKeyDownEvent(FSlateApplication& SlateApp, const FKeyEvent& InKeyEvent);
    /** Debug name for logging purposes. */
    virtual const TCHAR* GetDebugName() const;
};
