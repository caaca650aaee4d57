#include "Core/Outliner/OrvOutlinerTreeBuilder.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace OrvWebBridge
{
    namespace
    {
        // Sort keys folded to lower case once, so that sorting compares plain bytes: the same order as
        // FOrvStrings::CompareIgnoreCase at a fraction of its cost.
        std::string OrvTreeBuilderFoldedKey(std::string_view Text)
        {
            std::string Key(Text);
            for (char& Character : Key)
            {
                if (Character >= 'A' && Character <= 'Z')
                {
                    Character = static_cast<char>(Character - 'A' + 'a');
                }
            }
            return Key;
        }

        struct FOrvTreeBuilderProduct
        {
            std::string SortKey; ///< "brand name", folded
            FOrvSceneProductPtr Product;
        };

        struct FOrvTreeBuilderCategoryGroup
        {
            std::string SortKey;
            std::string Name;
            std::vector<FOrvTreeBuilderProduct> Products;
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
                    Groups.push_back({OrvTreeBuilderFoldedKey(Name), Name, {}});
                }
                return Groups[Found->second];
            }
        };

        struct FOrvTreeBuilderMacroGroup
        {
            std::string SortKey;
            std::string Name;
            FOrvTreeBuilderCategoryGroups Categories;
        };

        template <typename TItem> void OrvTreeBuilderSortByKey(std::vector<TItem>& Items)
        {
            std::stable_sort(Items.begin(), Items.end(),
                             [](const TItem& A, const TItem& B) { return A.SortKey < B.SortKey; });
        }

        std::int32_t OrvTreeBuilderCount(const FOrvSceneProduct& Product, const IOrvEditorWorld& World,
                                         EOrvActorCounting Counting)
        {
            return Counting == EOrvActorCounting::AllListedActorsExist
                       ? static_cast<std::int32_t>(Product.Actors.size())
                       : FOrvOutlinerTreeBuilder::CountLiveActors(Product, World);
        }

        std::vector<std::shared_ptr<FOrvOutlinerCategoryItem>>
        OrvTreeBuilderMakeCategories(FOrvTreeBuilderCategoryGroups& Categories, const IOrvEditorWorld& World,
                                     EOrvActorCounting Counting)
        {
            OrvTreeBuilderSortByKey(Categories.Groups);
            std::vector<std::shared_ptr<FOrvOutlinerCategoryItem>> Items;
            Items.reserve(Categories.Groups.size());
            for (FOrvTreeBuilderCategoryGroup& Group : Categories.Groups)
            {
                OrvTreeBuilderSortByKey(Group.Products);
                auto Item = std::make_shared<FOrvOutlinerCategoryItem>();
                Item->CategoryName = std::move(Group.Name);
                Item->Products.reserve(Group.Products.size());
                for (FOrvTreeBuilderProduct& Entry : Group.Products)
                {
                    Item->ActorCount += OrvTreeBuilderCount(*Entry.Product, World, Counting);
                    Item->Products.push_back(
                        std::make_shared<FOrvOutlinerProductItem>(std::move(Entry.Product)));
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
                                                         const IOrvEditorWorld& World,
                                                         EOrvActorCounting Counting)
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
                    MacroGroups.push_back(
                        {OrvTreeBuilderFoldedKey(Product->CategoryT2), Product->CategoryT2, {}});
                }
                Categories = &MacroGroups[Found->second].Categories;
            }
            std::string SortKey = OrvTreeBuilderFoldedKey(Product->Brand);
            SortKey += ' ';
            SortKey += OrvTreeBuilderFoldedKey(Product->Name);
            Categories->FindOrAdd(Product->Category).Products.push_back({std::move(SortKey), Product});
        }

        OrvTreeBuilderSortByKey(MacroGroups);
        FOrvOutlinerTreeItems RootItems;
        RootItems.reserve(MacroGroups.size() + RootCategories.Groups.size());
        for (FOrvTreeBuilderMacroGroup& Group : MacroGroups)
        {
            auto Item = std::make_shared<FOrvOutlinerMacroCategoryItem>();
            Item->MacroCategoryName = std::move(Group.Name);
            Item->Categories = OrvTreeBuilderMakeCategories(Group.Categories, World, Counting);
            for (const auto& Category : Item->Categories)
            {
                Item->ActorCount += Category->ActorCount;
            }
            RootItems.push_back(std::move(Item));
        }
        for (auto& Category : OrvTreeBuilderMakeCategories(RootCategories, World, Counting))
        {
            RootItems.push_back(std::move(Category));
        }
        return RootItems;
    }
} // namespace OrvWebBridge
