#include "Core/Outliner/OrvOutlinerTreeBuilder.h"

#include "Core/Common/OrvStrings.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace
{
    struct FOrvTreeBuilderCategoryGroup
    {
        std::string Name;
        std::vector<std::pair<std::string, FOrvSceneProductPtr>> Products; ///< sort key "Brand Name", product
    };

    // Groups in first-met order with a name index, so that grouping stays linear.
    struct FOrvTreeBuilderCategoryGroups
    {
        std::vector<FOrvTreeBuilderCategoryGroup> Groups;
        TOrvOutlinerNameMap<std::size_t> IndexByName;

        FOrvTreeBuilderCategoryGroup& FindOrAdd(const std::string& Name)
        {
            const auto [Found, bInserted] = IndexByName.try_emplace(Name, Groups.size());
            if (bInserted)
            {
                Groups.push_back({Name, {}});
            }
            return Groups[Found->second];
        }
    };

    struct FOrvTreeBuilderMacroGroup
    {
        std::string Name;
        FOrvTreeBuilderCategoryGroups Categories;
    };

    template <typename TGroup> void OrvTreeBuilderSortByName(std::vector<TGroup>& Groups)
    {
        std::stable_sort(Groups.begin(), Groups.end(),
                         [](const TGroup& A, const TGroup& B)
                         { return FOrvStrings::LessIgnoreCase(A.Name, B.Name); });
    }

    std::vector<std::shared_ptr<FOrvOutlinerCategoryItem>>
    OrvTreeBuilderMakeCategories(FOrvTreeBuilderCategoryGroups& Categories, const IOrvEditorWorld& World)
    {
        OrvTreeBuilderSortByName(Categories.Groups);
        std::vector<std::shared_ptr<FOrvOutlinerCategoryItem>> Items;
        Items.reserve(Categories.Groups.size());
        for (FOrvTreeBuilderCategoryGroup& Group : Categories.Groups)
        {
            std::stable_sort(Group.Products.begin(), Group.Products.end(),
                             [](const auto& A, const auto& B)
                             { return FOrvStrings::LessIgnoreCase(A.first, B.first); });
            auto Item = std::make_shared<FOrvOutlinerCategoryItem>();
            Item->CategoryName = std::move(Group.Name);
            Item->Products.reserve(Group.Products.size());
            for (auto& [SortKey, Product] : Group.Products)
            {
                Item->ActorCount += FOrvOutlinerTreeBuilder::CountLiveActors(*Product, World);
                Item->Products.push_back(std::make_shared<FOrvOutlinerProductItem>(std::move(Product)));
            }
            Items.push_back(std::move(Item));
        }
        return Items;
    }
} // namespace

std::int32_t FOrvOutlinerTreeBuilder::CountLiveActors(const FOrvSceneProduct& Product,
                                                      const IOrvEditorWorld& World)
{
    std::int32_t Count = 0;
    for (const FOrvActorRef Actor : Product.Actors)
    {
        Count += World.IsActorAlive(Actor) ? 1 : 0;
    }
    return Count;
}

FOrvOutlinerTreeItems FOrvOutlinerTreeBuilder::Build(const FOrvSceneProductMap& Products,
                                                     const IOrvEditorWorld& World)
{
    std::vector<FOrvTreeBuilderMacroGroup> MacroGroups;
    TOrvOutlinerNameMap<std::size_t> MacroIndexByName;
    FOrvTreeBuilderCategoryGroups RootCategories;

    for (const FOrvSceneProductPtr& Product : Products)
    {
        FOrvTreeBuilderCategoryGroups* Categories = &RootCategories;
        if (!Product->CategoryT2.empty())
        {
            const auto [Found, bInserted] =
                MacroIndexByName.try_emplace(Product->CategoryT2, MacroGroups.size());
            if (bInserted)
            {
                MacroGroups.push_back({Product->CategoryT2, {}});
            }
            Categories = &MacroGroups[Found->second].Categories;
        }
        Categories->FindOrAdd(Product->Category)
            .Products.emplace_back(Product->Brand + " " + Product->Name, Product);
    }

    OrvTreeBuilderSortByName(MacroGroups);
    FOrvOutlinerTreeItems RootItems;
    RootItems.reserve(MacroGroups.size() + RootCategories.Groups.size());
    for (FOrvTreeBuilderMacroGroup& Group : MacroGroups)
    {
        auto Item = std::make_shared<FOrvOutlinerMacroCategoryItem>();
        Item->MacroCategoryName = std::move(Group.Name);
        Item->Categories = OrvTreeBuilderMakeCategories(Group.Categories, World);
        for (const auto& Category : Item->Categories)
        {
            Item->ActorCount += Category->ActorCount;
        }
        RootItems.push_back(std::move(Item));
    }
    for (auto& Category : OrvTreeBuilderMakeCategories(RootCategories, World))
    {
        RootItems.push_back(std::move(Category));
    }
    return RootItems;
}
