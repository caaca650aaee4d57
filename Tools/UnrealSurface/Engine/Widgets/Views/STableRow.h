#pragma once

// Engine: Runtime/Slate/Public/Widgets/Views/STableRow.h (module Slate). In a tree view the row puts the
// expander arrow before its content by itself.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/STableRow

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

template <typename ItemType> class STableRow : public ITableRow, public SBorder
{
public:
    SLATE_BEGIN_ARGS(STableRow) {}
    SLATE_DEFAULT_SLOT(FArguments, Content)
    SLATE_END_ARGS()

    /** The owner table is a required argument: SNew(STableRow<T>, OwnerTable). */
    void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView);
};
