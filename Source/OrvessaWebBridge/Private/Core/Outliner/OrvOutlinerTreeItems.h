#pragma once

#include "Core/Outliner/OrvSceneProduct.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    class FOrvOutlinerTreeItem;
    class FOrvOutlinerMacroCategoryItem;
    class FOrvOutlinerCategoryItem;
    class FOrvOutlinerProductItem;

    using FOrvOutlinerTreeItemPtr = std::shared_ptr<FOrvOutlinerTreeItem>;
    using FOrvOutlinerTreeItems = std::vector<FOrvOutlinerTreeItemPtr>;

    /** @brief The three kinds of outliner rows; kept in the base because the core builds without RTTI. */
    enum class EOrvOutlinerItemKind : std::uint8_t
    {
        MacroCategory,
        Category,
        Product,
    };

    /** @brief A row of the outliner tree: it tells its kind and gives its children. */
    class FOrvOutlinerTreeItem
    {
    public:
        virtual ~FOrvOutlinerTreeItem() = default;

        EOrvOutlinerItemKind GetKind() const { return Kind; }

        /** The item's children in display order (category items, product items, or none). */
        virtual FOrvOutlinerTreeItems GetChildren() const = 0;

        /** Typed views: null when the item is of another kind. */
        const FOrvOutlinerMacroCategoryItem* AsMacroCategory() const;
        const FOrvOutlinerCategoryItem* AsCategory() const;
        const FOrvOutlinerProductItem* AsProduct() const;

    protected:
        explicit FOrvOutlinerTreeItem(EOrvOutlinerItemKind InKind) : Kind(InKind) {}

    private:
        EOrvOutlinerItemKind Kind;
    };

    /** @brief A category: the products sharing a Category value, and how many of their actors exist. */
    class FOrvOutlinerCategoryItem : public FOrvOutlinerTreeItem
    {
    public:
        FOrvOutlinerCategoryItem() : FOrvOutlinerTreeItem(EOrvOutlinerItemKind::Category) {}

        FOrvOutlinerTreeItems GetChildren() const override;

        std::string CategoryName;
        std::vector<std::shared_ptr<FOrvOutlinerProductItem>> Products;
        std::int32_t ActorCount = 0;
    };

    /** @brief A macro category: the categories of products sharing a CategoryT2 value. */
    class FOrvOutlinerMacroCategoryItem : public FOrvOutlinerTreeItem
    {
    public:
        FOrvOutlinerMacroCategoryItem() : FOrvOutlinerTreeItem(EOrvOutlinerItemKind::MacroCategory) {}

        FOrvOutlinerTreeItems GetChildren() const override;

        std::string MacroCategoryName;
        std::vector<std::shared_ptr<FOrvOutlinerCategoryItem>> Categories;
        std::int32_t ActorCount = 0;
    };

    /** @brief A product row. */
    class FOrvOutlinerProductItem : public FOrvOutlinerTreeItem
    {
    public:
        explicit FOrvOutlinerProductItem(FOrvSceneProductPtr InProduct = nullptr)
            : FOrvOutlinerTreeItem(EOrvOutlinerItemKind::Product), Product(std::move(InProduct))
        {
        }

        FOrvOutlinerTreeItems GetChildren() const override { return {}; }

        /** "Brand - Name"; "Unknown Product" without a product. */
        std::string GetDisplayName() const;

        FOrvSceneProductPtr Product;
    };
} // namespace OrvWebBridge
