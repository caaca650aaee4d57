#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IInputProcessor.h"

class FOrvessaWebBridgeModule;

/**
 * @brief Sees every key before the editor's widgets do, so that Alt+R reaches the module even while the
 * catalogue page or a text box has keyboard focus. Registered with Slate for the module's whole life.
 */
class FOrvInputProcessor : public IInputProcessor
{
public:
    explicit FOrvInputProcessor(FOrvessaWebBridgeModule* InModule) : Module(InModule) {}

    virtual void Tick(const float DeltaTime, FSlateApplication& SlateApp, TSharedRef<ICursor> Cursor) override
    {
    }
    virtual const TCHAR* GetDebugName() const override { return TEXT("OrvInputProcessor"); }

private:
    FOrvessaWebBridgeModule* Module;
};
