#include "OrvOutlinerPanel.h"

#include "OrvOutlinerExportDialog.h"
#include "OrvessaWebBridgeStyle.h"

#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Images/SThrobber.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SWidgetSwitcher.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"

#include "Core/Module/OrvStyleTable.h"
#include "Unreal/OrvUnrealConversions.h"

// Texts are restated from the core's outliner texts as literals, which localisation gathering needs; a test
// keeps them equal.
#define LOCTEXT_NAMESPACE "OrvOutlinerPanel"

using namespace OrvWebBridge;

namespace
{
    /** A flat button showing one icon, with a tooltip. */
    TSharedRef<SWidget> OrvIconButton(const TAttribute<const FSlateBrush*>& Icon,
                                      const TAttribute<FText>& Tooltip, TFunction<void()> OnClicked)
    {
        // clang-format off
        return SNew(SButton)
            .ButtonStyle(FAppStyle::Get(), "SimpleButton")
            .ToolTipText(Tooltip)
            .OnClicked_Lambda(
                [OnClicked = MoveTemp(OnClicked)]()
                {
                    OnClicked();
                    return FReply::Handled();
                })
            [
                SNew(SImage).Image(Icon).ColorAndOpacity(FSlateColor::UseForeground())
            ];
        // clang-format on
    }

    const FSlateBrush* OrvEditorIcon(const char* Name)
    {
        return FAppStyle::GetBrush(FName(Name));
    }
} // namespace

void SOrvOutlinerPanel::Construct(const FArguments& InArgs)
{
    Model = InArgs._Model;
    Model->SetOnChanged([this]() { RebuildTree(); });
    Model->SetOpenExportDialog(
        [](const std::string& DefaultProjectName, FOrvOutlinerExportCallback OnExport)
        {
            // Modal: the model is alive until the dialog has closed.
            SOrvOutlinerExportDialog::OpenDialog(
                FOrvUnrealConversions::ToFString(DefaultProjectName),
                FOnOrvOutlinerExport::CreateLambda(
                    [OnExport = MoveTemp(OnExport)](const FString& ProjectName, const FString& Revision) {
                        OnExport(FOrvUnrealConversions::ToUtf8(ProjectName),
                                 FOrvUnrealConversions::ToUtf8(Revision));
                    }));
        });

    // clang-format off
    ChildSlot
    [
        SNew(SVerticalBox)
        + SVerticalBox::Slot().AutoHeight().Padding(4.0f)
        [
            SNew(SHorizontalBox)
            + SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)
            [
                SNew(STextBlock).Text_Lambda([this]() { return GetStatusText(); })
            ]
            + SHorizontalBox::Slot().AutoWidth()
            [
                OrvIconButton(OrvEditorIcon("Icons.Refresh"), LOCTEXT("RefreshTooltip", "Refresh scene scan"),
                              ClickAction([](FOrvOutlinerPanelModel& Panel) { Panel.OnRefreshClicked(); }))
            ]
            + SHorizontalBox::Slot().AutoWidth()
            [
                OrvIconButton(OrvEditorIcon("Icons.Save"), LOCTEXT("ExportCSVTooltip", "Export product schedule as CSV"),
                              ClickAction([](FOrvOutlinerPanelModel& Panel) { Panel.OnExportCSVClicked(); }))
            ]
        ]
        + SVerticalBox::Slot().FillHeight(1.0f)
        [
            SNew(SWidgetSwitcher)
            .WidgetIndex_Lambda([this]() { return Model && Model->IsUserLoggedIn() ? 1 : 0; })
            + SWidgetSwitcher::Slot()
            [
                SNew(SBorder)
                .BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder"))
                .HAlign(HAlign_Center)
                .VAlign(VAlign_Center)
                [
                    SNew(SVerticalBox)
                    + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center).Padding(0.0f, 0.0f, 0.0f, 8.0f)
                    [
                        SNew(STextBlock)
                        .Text(LOCTEXT("LoginRequired", "Login Required"))
                        .Font(FCoreStyle::GetDefaultFontStyle("Bold", 12))
                    ]
                    + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)
                    [
                        SNew(STextBlock)
                        .Text(LOCTEXT("LoginMessage", "Please log in via the Orv Catalog panel\nto view scene products."))
                        .Justification(ETextJustify::Center)
                    ]
                ]
            ]
            + SWidgetSwitcher::Slot()
            [
                SNew(SOverlay)
                + SOverlay::Slot()
                [
                    SAssignNew(TreeView, STreeView<FRowPtr>)
                    .TreeItemsSource(&RootRows)
                    .OnGenerateRow(this, &SOrvOutlinerPanel::OnGenerateRow)
                    .OnGetChildren(this, &SOrvOutlinerPanel::OnGetChildren)
                    .OnExpansionChanged(this, &SOrvOutlinerPanel::OnExpansionChanged)
                ]
                + SOverlay::Slot().HAlign(HAlign_Center).VAlign(VAlign_Center)
                [
                    SNew(SCircularThrobber)
                    .Visibility_Lambda([this]()
                                       { return Model && Model->IsRefreshing() ? EVisibility::Visible : EVisibility::Collapsed; })
                ]
            ]
        ]
    ];
    // clang-format on

    Model->Construct();
    RebuildTree();
}

void SOrvOutlinerPanel::ReleaseModel()
{
    Model.Reset();
    RootRows.Reset();
    RowsByItem.Reset();
    if (TreeView)
    {
        TreeView->RequestTreeRefresh();
    }
}

TFunction<void()> SOrvOutlinerPanel::ClickAction(TFunction<void(FOrvOutlinerPanelModel&)> Action)
{
    return [this, Action = MoveTemp(Action)]()
    {
        if (Model)
        {
            Action(*Model);
        }
    };
}

FText SOrvOutlinerPanel::GetStatusText() const
{
    // The model's status is English; the same decision is made here over the localised texts.
    if (!Model || Model->IsRefreshing())
    {
        return LOCTEXT("Scanning", "Scanning...");
    }
    const int32 Count = Model->GetProductCount();
    return Count > 0
               ? FText::Format(LOCTEXT("ProductCount", "{0} {0}|plural(one=product,other=products) in scene"),
                               Count)
               : LOCTEXT("NoProducts", "No products in scene");
}

void SOrvOutlinerPanel::RebuildTree()
{
    RootRows.Reset();
    RowsByItem.Reset();
    if (!Model || !TreeView)
    {
        return;
    }
    for (const FOrvOutlinerTreeItemPtr& Item : Model->GetRootItems())
    {
        RootRows.Add(WrapItem(Item));
    }
    TreeView->RequestTreeRefresh();
    // New rows start collapsed: expansion is kept by name in the model and applied again after each rebuild.
    for (const FOrvOutlinerTreeItemPtr& Item : Model->GetItemsToExpand())
    {
        if (const FRowPtr* Row = RowsByItem.Find(Item.get()))
        {
            TreeView->SetItemExpansion(*Row, true);
        }
    }
}

SOrvOutlinerPanel::FRowPtr SOrvOutlinerPanel::WrapItem(const FOrvOutlinerTreeItemPtr& Item)
{
    FRowPtr Row = MakeShared<FRow>();
    Row->Item = Item;
    for (const FOrvOutlinerTreeItemPtr& Child : Item->GetChildren())
    {
        Row->Children.Add(WrapItem(Child));
    }
    RowsByItem.Add(Item.get(), Row);
    return Row;
}

TSharedRef<ITableRow> SOrvOutlinerPanel::OnGenerateRow(FRowPtr Row,
                                                       const TSharedRef<STableViewBase>& OwnerTable)
{
    const FOrvOutlinerTreeItemPtr& Item = Row->Item;
    TSharedRef<SWidget> Content = SNullWidget::NullWidget;
    if (const FOrvOutlinerMacroCategoryItem* Macro = Item->AsMacroCategory())
    {
        Content = BuildMacroCategoryRow({Item, Macro});
    }
    else if (const FOrvOutlinerCategoryItem* Category = Item->AsCategory())
    {
        Content = BuildCategoryRow({Item, Category});
    }
    else if (const FOrvOutlinerProductItem* Product = Item->AsProduct())
    {
        Content = BuildProductRow({Item, Product});
    }
    return SNew(STableRow<FRowPtr>, OwnerTable)[Content];
}

void SOrvOutlinerPanel::OnGetChildren(FRowPtr Row, TArray<FRowPtr>& OutChildren)
{
    OutChildren = Row->Children;
}

void SOrvOutlinerPanel::OnExpansionChanged(FRowPtr Row, bool bIsExpanded)
{
    if (Model)
    {
        Model->OnItemExpansionChanged(*Row->Item, bIsExpanded);
    }
}

TSharedRef<SWidget>
SOrvOutlinerPanel::BuildMacroCategoryRow(std::shared_ptr<const FOrvOutlinerMacroCategoryItem> Item)
{
    const std::string Name = Item->MacroCategoryName;
    return BuildGroupRow(
        FOrvUnrealConversions::ToFString(Name), Item->ActorCount, LOCTEXT("MacroCategoryCount", "x{0}"),
        [this, Name]() { return Model && Model->IsMacroCategoryHidden(Name); },
        LOCTEXT("ShowMacroCategoryTooltip", "Show all actors in this category"),
        LOCTEXT("HideMacroCategoryTooltip", "Hide all actors in this category"),
        LOCTEXT("SelectMacroCategoryTooltip", "Select all actors in this category"),
        ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnToggleMacroCategoryVisibility(*Item); }),
        ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnSelectMacroCategoryClicked(*Item); }));
}

TSharedRef<SWidget> SOrvOutlinerPanel::BuildCategoryRow(std::shared_ptr<const FOrvOutlinerCategoryItem> Item)
{
    const std::string Name = Item->CategoryName;
    return BuildGroupRow(
        FOrvUnrealConversions::ToFString(Name), Item->ActorCount, LOCTEXT("CategoryCount", "x{0}"),
        [this, Name]() { return Model && Model->IsCategoryHidden(Name); },
        LOCTEXT("ShowCategoryTooltip", "Show all actors in this category"),
        LOCTEXT("HideCategoryTooltip", "Hide all actors in this category"),
        LOCTEXT("SelectCategoryTooltip", "Select all actors in this category"),
        ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnToggleCategoryVisibility(*Item); }),
        ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnSelectCategoryClicked(*Item); }));
}

TSharedRef<SWidget> SOrvOutlinerPanel::BuildGroupRow(const FString& Name, int32 ActorCount,
                                                     const FText& CountFormat, TFunction<bool()> IsHidden,
                                                     const FText& ShowTooltip, const FText& HideTooltip,
                                                     const FText& SelectTooltip, TFunction<void()> OnToggle,
                                                     TFunction<void()> OnSelect)
{
    const TAttribute<const FSlateBrush*> VisibilityIcon = TAttribute<const FSlateBrush*>::CreateLambda(
        [IsHidden]() { return OrvEditorIcon(IsHidden() ? "Icons.Hidden" : "Icons.Visible"); });
    const TAttribute<FText> VisibilityTooltip = TAttribute<FText>::CreateLambda(
        [IsHidden, ShowTooltip, HideTooltip]() { return IsHidden() ? ShowTooltip : HideTooltip; });
    // clang-format off
    return SNew(SHorizontalBox)
        + SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)
        [
            SNew(STextBlock).Text(FText::FromString(Name)).Font(FCoreStyle::GetDefaultFontStyle("Bold", 10))
        ]
        + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(8.0f, 0.0f)
        [
            SNew(STextBlock).Text(FText::Format(CountFormat, ActorCount))
        ]
        + SHorizontalBox::Slot().AutoWidth()
        [
            OrvIconButton(VisibilityIcon, VisibilityTooltip, MoveTemp(OnToggle))
        ]
        + SHorizontalBox::Slot().AutoWidth()
        [
            OrvIconButton(OrvEditorIcon("GenericCommands.SelectAll"), SelectTooltip, MoveTemp(OnSelect))
        ];
    // clang-format on
}

TSharedRef<SWidget> SOrvOutlinerPanel::BuildProductRow(std::shared_ptr<const FOrvOutlinerProductItem> Item)
{
    // clang-format off
    return SNew(SHorizontalBox)
        + SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)
        [
            SNew(STextBlock)
            .Text(FOrvUnrealConversions::ToFText(Item->GetDisplayName()))
            .Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
        ]
        + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(8.0f, 0.0f)
        [
            SNew(STextBlock)
            .Text_Lambda([this, Item]()
                         { return FText::Format(LOCTEXT("ActorCount", "x{0}"), Model ? Model->GetProductRowCount(*Item) : 0); })
        ]
        + SHorizontalBox::Slot().AutoWidth()
        [
            OrvIconButton(OrvEditorIcon("Icons.BrowseContent"),
                          LOCTEXT("NavigateMeshTooltip", "Navigate to mesh in Content Browser"),
                          ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnNavigateToMeshClicked(*Item); }))
        ]
        + SHorizontalBox::Slot().AutoWidth()
        [
            OrvIconButton(OrvEditorIcon("GenericCommands.SelectAll"),
                          LOCTEXT("SelectActorsTooltip", "Select all actors of this product in viewport"),
                          ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnSelectActorsClicked(*Item); }))
        ]
        + SHorizontalBox::Slot().AutoWidth()
        [
            OrvIconButton(FOrvessaWebBridgeStyle::Get().GetBrush(FName(FOrvBrushNames::CatalogIcon)),
                          LOCTEXT("OpenWebPanelTooltip", "Open product details in web panel"),
                          ClickAction([Item](FOrvOutlinerPanelModel& Panel) { Panel.OnOpenWebPanelClicked(*Item); }))
        ];
    // clang-format on
}

#undef LOCTEXT_NAMESPACE
