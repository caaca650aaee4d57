#include "Host/Outliner/OrvOutlinerTextView.h"

#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Outliner/OrvOutlinerTexts.h"

namespace OrvWebBridge
{
    namespace
    {
        void OrvTextViewAppendRow(std::string& Out, int Depth, const std::string& Name, std::int32_t Count,
                                  bool bHidden)
        {
            Out.append(static_cast<std::size_t>(Depth) * 2, ' ');
            Out += Name;
            Out += ' ';
            Out += FOrvOutlinerPanelTexts::FormatRowCount(Count);
            if (bHidden)
            {
                Out += " (hidden)";
            }
            Out += '\n';
        }

        void OrvTextViewAppendCategory(std::string& Out, const FOrvOutlinerPanelModel& Panel,
                                       const FOrvOutlinerCategoryItem& Category, int Depth)
        {
            OrvTextViewAppendRow(Out, Depth, Category.CategoryName, Category.ActorCount,
                                 Panel.IsCategoryHidden(Category.CategoryName));
            for (const auto& Product : Category.Products)
            {
                OrvTextViewAppendRow(Out, Depth + 1, Product->GetDisplayName(),
                                     Panel.GetProductRowCount(*Product), false);
            }
        }
    } // namespace

    std::string FOrvOutlinerTextView::Render(const FOrvOutlinerPanelModel& Panel)
    {
        std::string Out = Panel.GetStatusText() + "\n";
        if (!Panel.IsUserLoggedIn())
        {
            Out += FOrvOutlinerPanelTexts::LoginRequired.Text;
            Out += '\n';
            Out += FOrvOutlinerPanelTexts::LoginMessage.Text;
            Out += '\n';
            return Out;
        }
        for (const FOrvOutlinerTreeItemPtr& Root : Panel.GetRootItems())
        {
            if (const FOrvOutlinerMacroCategoryItem* Macro = Root->AsMacroCategory())
            {
                OrvTextViewAppendRow(Out, 0, Macro->MacroCategoryName, Macro->ActorCount,
                                     Panel.IsMacroCategoryHidden(Macro->MacroCategoryName));
                for (const auto& Category : Macro->Categories)
                {
                    OrvTextViewAppendCategory(Out, Panel, *Category, 1);
                }
            }
            else if (const FOrvOutlinerCategoryItem* Category = Root->AsCategory())
            {
                OrvTextViewAppendCategory(Out, Panel, *Category, 0);
            }
        }
        return Out;
    }
} // namespace OrvWebBridge
