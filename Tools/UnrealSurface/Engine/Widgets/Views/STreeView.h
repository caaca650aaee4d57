#pragma once

// Engine: Runtime/Slate/Public/Widgets/Views/STreeView.h (module Slate). Items are compared by value (for
// shared pointers, by pointer): rebuilt items start collapsed. SetItemExpansion also calls
// OnExpansionChanged when the state changes.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/STreeView

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

template <typename ItemType> class STreeView : public STableViewBase
{
public:
    // TSlateDelegates<ItemType> in the engine (Framework/Views/ITypedTableView.h).
    using FOnGenerateRow = TDelegate<TSharedRef<ITableRow>(ItemType, const TSharedRef<STableViewBase>&)>;
    using FOnGetChildren = TDelegate<void(ItemType, TArray<ItemType>&)>;
    using FOnExpansionChanged = TDelegate<void(ItemType, bool)>;

    SLATE_BEGIN_ARGS(STreeView) {}
    SLATE_ARGUMENT(const TArray<ItemType>*, TreeItemsSource)
    SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
    SLATE_EVENT(FOnGetChildren, OnGetChildren)
    SLATE_EVENT(FOnExpansionChanged, OnExpansionChanged)
    SLATE_END_ARGS()
    void Construct(const FArguments& InArgs);

    /** Regenerates the rows from the items source on the next tick. */
    void RequestTreeRefresh();
    void SetItemExpansion(ItemType InItem, bool InShouldExpandItem);
};
