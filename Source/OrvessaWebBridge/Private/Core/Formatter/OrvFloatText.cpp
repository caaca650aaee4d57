#include "Core/Formatter/OrvFloatText.h"

#include "Core/Common/OrvStrings.h"

namespace OrvWebBridge
{
    bool FOrvFloatText::IsNumeric(std::string_view Text)
    {
        std::size_t Index = (!Text.empty() && (Text[0] == '-' || Text[0] == '+')) ? 1 : 0;
        bool bHasDot = false;
        bool bHasDigit = false;
        for (; Index < Text.size(); ++Index)
        {
            const char Character = Text[Index];
            if (Character == '.')
            {
                if (bHasDot)
                {
                    return false;
                }
                bHasDot = true;
            }
            else if (Character >= '0' && Character <= '9')
            {
                bHasDigit = true;
            }
            else
            {
                return false;
            }
        }
        return bHasDigit;
    }

    std::string FOrvFloatText::SanitizeFloat(double Value, std::int32_t MinFractionalDigits)
    {
        // Adding zero turns negative zero into positive zero and leaves every other value alone.
        Value += 0.0;
        std::string Text = FOrvStrings::Printf("%f", Value);
        const std::size_t Point = Text.find('.');
        if (!IsNumeric(Text) || Point == std::string::npos)
        {
            return Text;
        }

        std::size_t Keep = Text.find_last_not_of('0');
        Keep = (Keep == Point) ? Point : Keep + 1;
        Text.erase(Keep);

        if (MinFractionalDigits > 0)
        {
            if (Keep == Point)
            {
                Text += '.';
            }
            const std::int64_t Fraction = static_cast<std::int64_t>(Text.size() - Point - 1);
            if (Fraction < MinFractionalDigits)
            {
                Text.append(static_cast<std::size_t>(MinFractionalDigits - Fraction), '0');
            }
        }
        return Text;
    }
} // namespace OrvWebBridge
