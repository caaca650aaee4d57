#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IInputProcessor.h"

#include "Unreal/OrvUnrealLog.h"

class FOrvessaWebBridgeModule;

/**
 * @brief Sees every key before the editor's widgets do, so that Alt+R can reach the module even while the
 * catalogue page or a text box has keyboard focus. Registered with Slate for the module's whole life.
 */
class FOrvInputProcessor : public IInputProcessor
{
public:
    explicit FOrvInputProcessor(FOrvessaWebBridgeModule* InModule) : Module(InModule) {}

    virtual void Tick(const float, FSlateApplication&, TSharedRef<ICursor>) override {}
    virtual const TCHAR* GetDebugName() const override { return TEXT("OrvInputProcessor"); }

    /** Alt+R runs the module's Alt+R action and is consumed; every other key goes on to the editor. */
    virtual bool HandleKeyDownEvent(FSlateApplication& SlateApp, const FKeyEvent& InKeyEvent) override;

private:
    FOrvessaWebBridgeModule* Module;
    OrvWebBridge::FOrvUnrealLog Log;
};
