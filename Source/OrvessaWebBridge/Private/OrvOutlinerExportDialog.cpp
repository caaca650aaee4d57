#include "OrvOutlinerExportDialog.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include "Core/Outliner/OrvOutlinerExportDialogModel.h"
#include "Unreal/OrvUnrealConversions.h"

// Texts are restated from the core's dialog texts as literals, which localisation gathering needs; a test
// keeps them equal.
#define LOCTEXT_NAMESPACE "OrvOutlinerExportDialog"

using namespace OrvWebBridge;

SOrvOutlinerExportDialog::SOrvOutlinerExportDialog() = default;
SOrvOutlinerExportDialog::~SOrvOutlinerExportDialog() = default;

void SOrvOutlinerExportDialog::OpenDialog(const FString& DefaultProjectName, FOnOrvOutlinerExport OnExport)
{
    if (!FSlateApplication::IsInitialized())
    {
        return;
    }
    const TSharedRef<SWindow> DialogWindow = SNew(SWindow)
                                                 .Title(LOCTEXT("WindowTitle", "Export Product Schedule"))
                                                 .SizingRule(ESizingRule::Autosized)
                                                 .SupportsMinimize(false)
                                                 .SupportsMaximize(false);
    DialogWindow->SetContent(SNew(SOrvOutlinerExportDialog)
                                 .DefaultProjectName(DefaultProjectName)
                                 .OnExport(MoveTemp(OnExport))
                                 .ParentWindow(DialogWindow));
    FSlateApplication::Get().AddModalWindow(DialogWindow, FGlobalTabmanager::Get()->GetRootWindow());
}

void SOrvOutlinerExportDialog::Construct(const FArguments& InArgs)
{
    Window = InArgs._ParentWindow;
    Model = MakeUnique<FOrvOutlinerExportDialogModel>(
        FOrvUnrealConversions::ToUtf8(InArgs._DefaultProjectName),
        [OnExport = InArgs._OnExport](const std::string& ProjectName, const std::string& Revision)
        {
            OnExport.ExecuteIfBound(FOrvUnrealConversions::ToFString(ProjectName),
                                    FOrvUnrealConversions::ToFString(Revision));
        });
    Model->SetRequestClose(
        [this]()
        {
            if (const TSharedPtr<SWindow> Pinned = Window.Pin())
            {
                Pinned->RequestDestroyWindow();
            }
        });

    const FMargin RowPadding(0.0f, 4.0f);
    // clang-format off
    ChildSlot
    [
        SNew(SBorder)
        .BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder"))
        .Padding(16.0f)
        [
            SNew(SVerticalBox)
            + SVerticalBox::Slot().AutoHeight().Padding(0.0f, 0.0f, 0.0f, 8.0f)
            [
                SNew(STextBlock)
                .Text(LOCTEXT("DialogTitle", "Export Product Schedule"))
                .Font(FCoreStyle::GetDefaultFontStyle("Bold", 12))
            ]
            + SVerticalBox::Slot().AutoHeight().Padding(RowPadding)
            [
                SNew(STextBlock).Text(LOCTEXT("ProjectNameLabel", "Project Name:"))
            ]
            + SVerticalBox::Slot().AutoHeight().Padding(RowPadding)
            [
                SNew(SEditableTextBox)
                .Text(FOrvUnrealConversions::ToFText(Model->GetProjectName()))
                .MinDesiredWidth(280.0f)
                .OnTextChanged_Lambda([this](const FText& Text)
                                      { Model->SetProjectName(FOrvUnrealConversions::ToUtf8(Text.ToString())); })
            ]
            + SVerticalBox::Slot().AutoHeight().Padding(RowPadding)
            [
                SNew(STextBlock).Text(LOCTEXT("RevisionLabel", "Revision:"))
            ]
            + SVerticalBox::Slot().AutoHeight().Padding(RowPadding)
            [
                SNew(SEditableTextBox)
                .Text(FOrvUnrealConversions::ToFText(Model->GetRevision()))
                .OnTextChanged_Lambda([this](const FText& Text)
                                      { Model->SetRevision(FOrvUnrealConversions::ToUtf8(Text.ToString())); })
            ]
            + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right).Padding(0.0f, 12.0f, 0.0f, 0.0f)
            [
                SNew(SHorizontalBox)
                + SHorizontalBox::Slot().AutoWidth().Padding(0.0f, 0.0f, 8.0f, 0.0f)
                [
                    SNew(SButton)
                    .Text(LOCTEXT("CancelButton", "Cancel"))
                    .OnClicked(this, &SOrvOutlinerExportDialog::OnCancelClicked)
                ]
                + SHorizontalBox::Slot().AutoWidth()
                [
                    SNew(SButton)
                    .ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("PrimaryButton"))
                    .Text(LOCTEXT("ExportButton", "Export CSV"))
                    .OnClicked(this, &SOrvOutlinerExportDialog::OnExportClicked)
                ]
            ]
        ]
    ];
    // clang-format on
}

FReply SOrvOutlinerExportDialog::OnExportClicked()
{
    Model->OnExportClicked();
    return FReply::Handled();
}

FReply SOrvOutlinerExportDialog::OnCancelClicked()
{
    Model->OnCancelClicked();
    return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
