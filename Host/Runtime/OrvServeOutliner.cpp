#include "Host/Runtime/OrvServeOutliner.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Outliner/OrvOutlinerTextView.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Host/Runtime/OrvServeConsole.h"

namespace OrvWebBridge
{
    namespace
    {
        /** The words of a command's arguments as one name: select Dining Chairs = select "Dining Chairs". */
        std::string JoinWords(const std::vector<std::string>& Args)
        {
            std::string Name;
            for (const std::string& Word : Args)
            {
                Name += (Name.empty() ? "" : " ") + Word;
            }
            return Name;
        }

        std::string Plural(std::size_t Count, const char* Noun)
        {
            return FOrvStrings::Printf("%zu %s%s", Count, Noun, Count == 1 ? "" : "s");
        }
    } // namespace

    FOrvServeOutliner::FOrvServeOutliner(FOrvHostEventLoop& InLoop, FOrvMemoryEditor& InEditor,
                                         IOrvLog& InLog)
        : Loop(InLoop), Editor(InEditor), Log(InLog)
    {
    }

    FOrvServeOutliner::~FOrvServeOutliner()
    {
        Panel.reset();
    }

    bool FOrvServeOutliner::Open(const FOrvCatalogSourceOptions& Options, std::string& Error)
    {
        Catalog = FOrvHostCatalog::Open(Options, Loop);
        if (!Catalog.Api)
        {
            Error = Catalog.Error;
            return false;
        }
        Panel = std::make_unique<FOrvOutlinerPanelModel>(FOrvOutlinerPanelPorts{
            Editor.World(), Editor.LevelEvents(), Editor.Meshes(), *Catalog.Api, Editor.Selection(),
            Editor.Editing(), Loop.Timers(), Ui, Files, Environment, Log});
        return true;
    }

    void FOrvServeOutliner::Start(FOrvServeConsole& Console)
    {
        Panel->Construct();
        Console.AddCommand("tree", "tree", "Show the outliner: the level's catalogue products by category.",
                           [this](const auto&) { return Tree(); });
        Console.AddCommand("refresh", "refresh", "Rescan the level and ask the catalogue again.",
                           [this](const auto&) { return Refresh(); });
        Console.AddCommand("select", "select NAME",
                           "Select the actors of a product, category or macro category.",
                           [this](const auto& Args) { return Select(Args); });
        Console.AddCommand("hide", "hide NAME", "Hide the actors of a product, category or macro category.",
                           [this](const auto& Args) { return SetHidden(Args, true); });
        Console.AddCommand("show", "show NAME", "Show them again.",
                           [this](const auto& Args) { return SetHidden(Args, false); });
        Console.AddCommand("export", "export [FILE [PROJECT [REV]]]",
                           "Write the Product Schedule CSV (default: <Project>_ProductSchedule_R01.csv).",
                           [this](const auto& Args) { return Export(Args); });
    }

    bool FOrvServeOutliner::FindItem(const std::string& Name, FOrvNamedItem& Found, std::string& Error) const
    {
        if (Name.empty())
        {
            Error = "Name a product, category or macro category (see tree).";
            return false;
        }
        std::vector<const FOrvOutlinerCategoryItem*> Categories;
        for (const FOrvOutlinerTreeItemPtr& Root : Panel->GetRootItems())
        {
            if (const FOrvOutlinerMacroCategoryItem* Macro = Root->AsMacroCategory())
            {
                if (FOrvStrings::EqualsIgnoreCase(Macro->MacroCategoryName, Name))
                {
                    Found.Macro = Macro;
                    return true;
                }
                for (const auto& Category : Macro->Categories)
                {
                    Categories.push_back(Category.get());
                }
            }
            else if (const FOrvOutlinerCategoryItem* Category = Root->AsCategory())
            {
                Categories.push_back(Category);
            }
        }
        for (const FOrvOutlinerCategoryItem* Category : Categories)
        {
            if (FOrvStrings::EqualsIgnoreCase(Category->CategoryName, Name))
            {
                Found.Category = Category;
                return true;
            }
        }
        // A product id or display name is unique; a bare product name may not be.
        std::vector<const FOrvOutlinerProductItem*> ByName;
        for (const FOrvOutlinerCategoryItem* Category : Categories)
        {
            for (const auto& Product : Category->Products)
            {
                if (!Product->Product)
                {
                    continue;
                }
                if (FOrvStrings::EqualsIgnoreCase(Product->Product->ProductID, Name) ||
                    FOrvStrings::EqualsIgnoreCase(Product->GetDisplayName(), Name))
                {
                    Found.Product = Product.get();
                    return true;
                }
                if (FOrvStrings::EqualsIgnoreCase(Product->Product->Name, Name))
                {
                    ByName.push_back(Product.get());
                }
            }
        }
        if (ByName.size() == 1)
        {
            Found.Product = ByName.front();
            return true;
        }
        if (ByName.size() > 1)
        {
            Error = "\"" + Name + "\" names " + Plural(ByName.size(), "product") +
                    "; use the product id or \"Brand - Name\":";
            for (const FOrvOutlinerProductItem* Product : ByName)
            {
                Error += "\n  " + Product->Product->ProductID + "  " + Product->GetDisplayName();
            }
            return false;
        }
        Error = "Nothing called \"" + Name + "\" in the outliner (see tree).";
        return false;
    }

    std::string FOrvServeOutliner::Tree() const
    {
        return FOrvOutlinerTextView::Render(*Panel);
    }

    std::string FOrvServeOutliner::Refresh()
    {
        if (Panel->IsRefreshing())
        {
            return "A scan is already running; type tree to see it.";
        }
        Panel->RefreshPanel();
        return Panel->IsRefreshing() ? "Rescanning the level; type tree to see the result." : Tree();
    }

    std::string FOrvServeOutliner::Select(const std::vector<std::string>& Args)
    {
        FOrvNamedItem Item;
        std::string Error;
        if (!FindItem(JoinWords(Args), Item, Error))
        {
            return Error;
        }
        if (Item.Macro)
        {
            Panel->OnSelectMacroCategoryClicked(*Item.Macro);
        }
        else if (Item.Category)
        {
            Panel->OnSelectCategoryClicked(*Item.Category);
        }
        else
        {
            Panel->OnSelectActorsClicked(*Item.Product);
        }
        const std::vector<FOrvActorRef> Selected = Editor.GetSelectedActors();
        std::string Text = "Selected " + Plural(Selected.size(), "actor") + (Selected.empty() ? "." : ":");
        for (const FOrvActorRef Actor : Selected)
        {
            if (const FOrvMemoryActor* Found = Editor.FindActor(Actor))
            {
                Text += " " + Found->Name;
            }
        }
        return Text;
    }

    std::string FOrvServeOutliner::SetHidden(const std::vector<std::string>& Args, bool bHide)
    {
        FOrvNamedItem Item;
        std::string Error;
        if (!FindItem(JoinWords(Args), Item, Error))
        {
            return Error;
        }
        const char* Done = bHide ? "Hid" : "Showed";
        if (Item.Macro || Item.Category)
        {
            const std::string& Name =
                Item.Macro ? Item.Macro->MacroCategoryName : Item.Category->CategoryName;
            const bool bHidden = Item.Macro ? Panel->IsMacroCategoryHidden(Name)
                                            : Panel->IsCategoryHidden(Item.Category->CategoryName);
            const char* Kind = Item.Macro ? "Macro category" : "Category";
            if (bHidden == bHide)
            {
                return FOrvStrings::Printf("%s %s is already %s.", Kind, Name.c_str(),
                                           bHide ? "hidden" : "shown");
            }
            // The panel's eye button toggles; the console asks for a state, so toggle only when it differs.
            if (Item.Macro)
            {
                Panel->OnToggleMacroCategoryVisibility(*Item.Macro);
            }
            else
            {
                Panel->OnToggleCategoryVisibility(*Item.Category);
            }
            const std::int32_t Count = Item.Macro ? Item.Macro->ActorCount : Item.Category->ActorCount;
            return FOrvStrings::Printf("%s %s %s (%s).", Done, Item.Macro ? "macro category" : "category",
                                       Name.c_str(),
                                       Plural(static_cast<std::size_t>(Count), "actor").c_str());
        }
        // The panel has no per-product eye, so the console sets the product's actors directly.
        std::size_t Changed = 0;
        for (const FOrvActorRef Actor : Item.Product->Product->Actors)
        {
            if (Editor.World().IsActorAlive(Actor))
            {
                Editor.Editing().SetTemporarilyHidden(Actor, bHide);
                ++Changed;
            }
        }
        return FOrvStrings::Printf("%s %s of %s.", Done, Plural(Changed, "actor").c_str(),
                                   Item.Product->GetDisplayName().c_str());
    }

    std::string FOrvServeOutliner::Export(const std::vector<std::string>& Args)
    {
        if (Args.size() > 3)
        {
            return "Usage: export [FILE [PROJECT [REV]]]";
        }
        const std::string Project = Args.size() > 1 ? Args[1] : Panel->GetDefaultProjectName();
        const std::string Revision = Args.size() > 2 ? Args[2] : "01";
        // Naming a file is the console's answer to the save dialog, and so a consent to replace it.
        Files.DialogAnswer =
            Args.empty() ? std::optional<std::string>() : std::optional<std::string>(Args[0]);
        Files.bAllowOverwrite = !Args.empty();
        Files.LastSavedPath.reset();
        if (Panel->OnExportConfirmed(Project, Revision) && Files.LastSavedPath)
        {
            return "Wrote " + *Files.LastSavedPath + ".";
        }
        if (Panel->GetScanner().GetSceneProducts().IsEmpty())
        {
            return "No products to export.";
        }
        if (Files.bLastFailureWasExistingFile)
        {
            return "Not written: the file exists; name it to replace it: export FILE";
        }
        return "Not written: " + (Files.LastError.empty() ? std::string("see the log") : Files.LastError);
    }
} // namespace OrvWebBridge
