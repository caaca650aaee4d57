#include "Core/Outliner/OrvOutlinerTexts.h"

std::string FOrvOutlinerPanelTexts::FormatNumber(std::int64_t Value)
{
    const bool bNegative = Value < 0;
    std::string Digits = std::to_string(Value);
    if (bNegative)
    {
        Digits.erase(0, 1);
    }
    std::string Grouped;
    Grouped.reserve(Digits.size() + Digits.size() / 3 + 1);
    if (bNegative)
    {
        Grouped.push_back('-');
    }
    for (std::size_t Index = 0; Index < Digits.size(); ++Index)
    {
        if (Index > 0 && (Digits.size() - Index) % 3 == 0)
        {
            Grouped.push_back(',');
        }
        Grouped.push_back(Digits[Index]);
    }
    return Grouped;
}

std::string FOrvOutlinerPanelTexts::FormatStatus(std::int32_t Count)
{
    if (Count <= 0)
    {
        return NoProducts.Text;
    }
    return FormatNumber(Count) + (Count == 1 ? " product in scene" : " products in scene");
}

std::string FOrvOutlinerPanelTexts::FormatRowCount(std::int32_t Count)
{
    return "x" + FormatNumber(Count);
}
