#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/STreeView.h"

#include "Core/Outliner/OrvOutlinerPanelModel.h"

class ITableRow;
class STableViewBase;

/**
 * @brief The "Orv Outliner" tab's content: draws FOrvOutlinerPanelModel (status, sign-in gate, the tree of
 * macro categories, categories and products with their buttons) and hands every click to it.
 */
class SOrvOutlinerPanel : public SCompoundWidget
{
public:
    SLATE_BEGIN_ARGS(SOrvOutlinerPanel) {}
    SLATE_ARGUMENT(TSharedPtr<OrvWebBridge::FOrvOutlinerPanelModel>, Model)
    SLATE_END_ARGS()

    void Construct(const FArguments& InArgs);

    /** The model; null once released. */
    OrvWebBridge::FOrvOutlinerPanelModel* GetModel() const { return Model.Get(); }

    /** Lets go of the model, and with it the level registrations, the timer and the scan it holds. */
    void ReleaseModel();

private:
    /** A tree row over one core item: the tree view keeps its items by shared pointer. */
    struct FRow
    {
        OrvWebBridge::FOrvOutlinerTreeItemPtr Item;
        TArray<TSharedPtr<FRow>> Children;
    };
    using FRowPtr = TSharedPtr<FRow>;

    void RebuildTree();
    FRowPtr WrapItem(const OrvWebBridge::FOrvOutlinerTreeItemPtr& Item);
    TSharedRef<ITableRow> OnGenerateRow(FRowPtr Row, const TSharedRef<STableViewBase>& OwnerTable);
    void OnGetChildren(FRowPtr Row, TArray<FRowPtr>& OutChildren);
    void OnExpansionChanged(FRowPtr Row, bool bIsExpanded);

    // Each row keeps its item alive for the row's buttons, whatever the next rescan does.
    TSharedRef<SWidget>
    BuildMacroCategoryRow(std::shared_ptr<const OrvWebBridge::FOrvOutlinerMacroCategoryItem> Item);
    TSharedRef<SWidget> BuildCategoryRow(std::shared_ptr<const OrvWebBridge::FOrvOutlinerCategoryItem> Item);
    TSharedRef<SWidget> BuildProductRow(std::shared_ptr<const OrvWebBridge::FOrvOutlinerProductItem> Item);
    TSharedRef<SWidget> BuildGroupRow(const FString& Name, int32 ActorCount, const FText& CountFormat,
                                      TFunction<bool()> IsHidden, const FText& ShowTooltip,
                                      const FText& HideTooltip, const FText& SelectTooltip,
                                      TFunction<void()> OnToggle, TFunction<void()> OnSelect);
    FText GetStatusText() const;

    /** A button's click: runs Action with the model, unless the model was released. */
    TFunction<void()> ClickAction(TFunction<void(OrvWebBridge::FOrvOutlinerPanelModel&)> Action);

    TSharedPtr<OrvWebBridge::FOrvOutlinerPanelModel> Model;
    TArray<FRowPtr> RootRows;
    TMap<const OrvWebBridge::FOrvOutlinerTreeItem*, FRowPtr> RowsByItem;
    TSharedPtr<STreeView<FRowPtr>> TreeView;
};
