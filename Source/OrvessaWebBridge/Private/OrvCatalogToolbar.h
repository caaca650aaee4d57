#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/**
 * @brief The "Orv Catalog" tab's toolbar row above the site: the "Auto-Detect" check box, the Alt+R hint and
 * the "Copy URL" button. It reaches the smart panel through the loaded module on every use, so a tab left
 * open while the module shuts down does nothing instead of touching what the module has released.
 */
class SOrvCatalogToolbar : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvCatalogToolbar) {}
    SLATE_END_ARGS()

    void Construct(const FArguments& InArgs);

private:
    ECheckBoxState GetAutoDetectState() const;
    void OnAutoDetectChanged(ECheckBoxState NewState);
    FReply OnCopyUrlClicked();
};
