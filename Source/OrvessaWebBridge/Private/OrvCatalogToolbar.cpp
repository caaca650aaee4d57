#include "OrvCatalogToolbar.h"

#include "OrvessaWebBridge.h"

#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include "Core/SmartPanel/OrvSmartPanel.h"

// Texts are restated from the core's toolbar table as literals, which localisation gathering needs; a test
// keeps them equal.
#define LOCTEXT_NAMESPACE "FOrvessaWebBridgeModule"

using namespace OrvWebBridge;

namespace
{
    FOrvSmartPanel* FindSmartPanel()
    {
        FOrvessaWebBridgeModule* Module = FOrvessaWebBridgeModule::GetLoaded();
        return Module ? Module->GetSmartPanel() : nullptr;
    }
} // namespace

void SOrvCatalogToolbar::Construct(const FArguments&)
{
    // clang-format off
    ChildSlot
    [
        SNew(SHorizontalBox)
        + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(4.0f, 2.0f)
        [
            SNew(SCheckBox)
            .IsChecked_Lambda([this]() { return GetAutoDetectState(); })
            .OnCheckStateChanged(this, &SOrvCatalogToolbar::OnAutoDetectChanged)
            .ToolTipText(LOCTEXT("AutoDetectTooltip", "Automatically detects Orv products in viewport and finish "
                                                      "materials in Content Browser, navigating to their details page"))
            [
                SNew(STextBlock).Text(LOCTEXT("AutoDetectLabel", "Auto-Detect"))
            ]
        ]
        + SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center).Padding(8.0f, 2.0f)
        [
            SNew(STextBlock)
            .Text(LOCTEXT("AltRHint", "Select asset > Alt+R for details"))
            .ToolTipText(LOCTEXT("AltRHintTooltip", "Select an Orv product in viewport or finish material in "
                                                    "Content Browser, then press Alt+R to view details"))
        ]
        + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(4.0f, 2.0f)
        [
            SNew(SButton)
            .Text(LOCTEXT("CopyURLLabel", "Copy URL"))
            .ToolTipText(LOCTEXT("CopyURLTooltip", "Copy current URL to clipboard"))
            .OnClicked(this, &SOrvCatalogToolbar::OnCopyUrlClicked)
        ]
    ];
    // clang-format on
}

ECheckBoxState SOrvCatalogToolbar::GetAutoDetectState() const
{
    const FOrvSmartPanel* SmartPanel = FindSmartPanel();
    return SmartPanel && SmartPanel->IsAutoDetectEnabled() ? ECheckBoxState::Checked
                                                           : ECheckBoxState::Unchecked;
}

void SOrvCatalogToolbar::OnAutoDetectChanged(ECheckBoxState NewState)
{
    if (FOrvSmartPanel* SmartPanel = FindSmartPanel())
    {
        SmartPanel->SetAutoDetect(NewState == ECheckBoxState::Checked);
    }
}

FReply SOrvCatalogToolbar::OnCopyUrlClicked()
{
    if (FOrvSmartPanel* SmartPanel = FindSmartPanel())
    {
        SmartPanel->CopyUrl();
    }
    return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
