#include "Core/Outliner/OrvOutlinerTexts.h"

namespace OrvWebBridge
{
    std::string FOrvOutlinerPanelTexts::FormatNumber(std::int64_t Value)
    {
        // Digits from the lowest, a comma before every third, then reversed.
        std::uint64_t Magnitude =
            Value < 0 ? 0 - static_cast<std::uint64_t>(Value) : static_cast<std::uint64_t>(Value);
        std::string Reversed;
        int Digits = 0;
        do
        {
            if (Digits > 0 && Digits % 3 == 0)
            {
                Reversed.push_back(',');
            }
            Reversed.push_back(static_cast<char>('0' + Magnitude % 10));
            Magnitude /= 10;
            ++Digits;
        } while (Magnitude > 0);
        if (Value < 0)
        {
            Reversed.push_back('-');
        }
        return std::string(Reversed.rbegin(), Reversed.rend());
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
        std::string Text = "x";
        Text += FormatNumber(Count);
        return Text;
    }
} // namespace OrvWebBridge
