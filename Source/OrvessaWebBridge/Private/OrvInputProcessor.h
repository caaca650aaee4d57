#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IInputProcessor.h"

/**
 * @brief Sees every key before the editor's widgets do, so that Alt+R can reach the module even while the
 * catalogue page or a text box has keyboard focus. Registered with Slate for the module's whole life.
 */
class FOrvInputProcessor : public IInputProcessor
{
public:
    virtual void Tick(const float, FSlateApplication&, TSharedRef<ICursor>) override {}
    virtual const TCHAR* GetDebugName() const override { return TEXT("OrvInputProcessor"); }
};
