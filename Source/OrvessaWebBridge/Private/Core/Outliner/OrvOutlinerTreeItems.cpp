#include "Core/Outliner/OrvOutlinerTreeItems.h"

#include "Core/Common/OrvStrings.h"

namespace OrvWebBridge
{
    const FOrvOutlinerMacroCategoryItem* FOrvOutlinerTreeItem::AsMacroCategory() const
    {
        return Kind == EOrvOutlinerItemKind::MacroCategory
                   ? static_cast<const FOrvOutlinerMacroCategoryItem*>(this)
                   : nullptr;
    }

    const FOrvOutlinerCategoryItem* FOrvOutlinerTreeItem::AsCategory() const
    {
        return Kind == EOrvOutlinerItemKind::Category ? static_cast<const FOrvOutlinerCategoryItem*>(this)
                                                      : nullptr;
    }

    const FOrvOutlinerProductItem* FOrvOutlinerTreeItem::AsProduct() const
    {
        return Kind == EOrvOutlinerItemKind::Product ? static_cast<const FOrvOutlinerProductItem*>(this)
                                                     : nullptr;
    }

    FOrvOutlinerTreeItems FOrvOutlinerCategoryItem::GetChildren() const
    {
        return FOrvOutlinerTreeItems(Products.begin(), Products.end());
    }

    FOrvOutlinerTreeItems FOrvOutlinerMacroCategoryItem::GetChildren() const
    {
        return FOrvOutlinerTreeItems(Categories.begin(), Categories.end());
    }

    std::string FOrvOutlinerProductItem::GetDisplayName() const
    {
        if (!Product)
        {
            return "Unknown Product";
        }
        return Product->Brand + " - " + Product->Name;
    }
} // namespace OrvWebBridge
