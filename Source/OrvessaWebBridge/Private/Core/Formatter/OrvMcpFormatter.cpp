#include "Core/Formatter/OrvMcpFormatter.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Formatter/OrvFloatText.h"
#include "Core/Formatter/OrvUtf16Text.h"
#include "Core/Json/OrvJson.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace OrvWebBridge
{
    namespace
    {
        // UTF-8 spelled out in hex so that no compiler's source or execution character set can alter it.
        constexpr std::string_view OrvCardEmDash = "\xE2\x80\x94";     // U+2014
        constexpr std::string_view OrvCardMiddleDot = "\xC2\xB7";      // U+00B7
        constexpr std::string_view OrvCardTimes = "\xC3\x97";          // U+00D7
        constexpr std::string_view OrvCardRightArrow = "\xE2\x86\x92"; // U+2192
        constexpr std::string_view OrvCardEllipsis = "\xE2\x80\xA6";   // U+2026

        constexpr std::string_view OrvCardRule = "\n\n---\n\n";

        const rapidjson::Value* OrvCardFindField(const rapidjson::Value* Object, std::string_view Key)
        {
            return Object ? FOrvJson::FindField(*Object, Key) : nullptr;
        }

        // The engine's string access: numbers print through SanitizeFloat with no forced fraction.
        bool OrvCardTryGetString(const rapidjson::Value& Value, std::string& Out)
        {
            if (Value.IsString())
            {
                Out.assign(Value.GetString(), Value.GetStringLength());
                return true;
            }
            if (Value.IsNumber())
            {
                Out = FOrvFloatText::SanitizeFloat(Value.GetDouble(), 0);
                return true;
            }
            if (Value.IsBool())
            {
                Out = Value.GetBool() ? "true" : "false";
                return true;
            }
            return false;
        }

        // The engine's number access (numeric strings and booleans read as numbers too).
        bool OrvCardTryGetNumber(const rapidjson::Value& Value, double& Out)
        {
            if (Value.IsNumber())
            {
                Out = Value.GetDouble();
                return true;
            }
            if (Value.IsBool())
            {
                Out = Value.GetBool() ? 1.0 : 0.0;
                return true;
            }
            if (Value.IsString() && FOrvFloatText::IsNumeric(FOrvJson::View(Value)))
            {
                Out = std::strtod(std::string(FOrvJson::View(Value)).c_str(), nullptr);
                return true;
            }
            return false;
        }

        const rapidjson::Value* OrvCardObjectOf(const rapidjson::Value* Value)
        {
            return Value && Value->IsObject() ? Value : nullptr;
        }

        std::string OrvCardJoin(const std::vector<std::string>& Parts, std::string_view Separator)
        {
            std::string Joined;
            for (std::size_t Index = 0; Index < Parts.size(); ++Index)
            {
                if (Index > 0)
                {
                    Joined += Separator;
                }
                Joined += Parts[Index];
            }
            return Joined;
        }
    } // namespace

    std::string FOrvMcpFormatter::FieldText(const rapidjson::Value* Obj, std::string_view Key)
    {
        const rapidjson::Value* Field = OrvCardFindField(Obj, Key);
        if (!Field)
        {
            return {};
        }
        std::string Text;
        if (OrvCardTryGetString(*Field, Text))
        {
            return Text;
        }
        // The string access already answers for every value that reads as a number; this fallback stays
        // so that the text matches the plugin's in every case (2019 would read "2019.0" here).
        double Number = 0.0;
        if (OrvCardTryGetNumber(*Field, Number))
        {
            const std::string Sanitized = FOrvFloatText::SanitizeFloat(Number, 1);
            // The pattern has no letters, so an exact replacement is the same as one ignoring case.
            return FOrvStrings::ReplaceAll(FOrvUtf16Text::TrimEnd(Sanitized), ".000000", "");
        }
        return {};
    }

    std::string FOrvMcpFormatter::FirstElementName(const rapidjson::Value* Product, std::string_view ArrayKey)
    {
        const rapidjson::Value* Array = OrvCardFindField(Product, ArrayKey);
        if (!Array || !Array->IsArray() || Array->Empty())
        {
            return {};
        }
        return FieldText(OrvCardObjectOf(&(*Array)[0]), "name");
    }

    std::string FOrvMcpFormatter::BrandName(const rapidjson::Value* Product)
    {
        return FirstElementName(Product, "brand");
    }

    std::string FOrvMcpFormatter::DesignerName(const rapidjson::Value* Product)
    {
        return FirstElementName(Product, "designed_by");
    }

    std::string FOrvMcpFormatter::DimensionsLine(const rapidjson::Value* Product)
    {
        const rapidjson::Value* Dimensions = OrvCardObjectOf(OrvCardFindField(Product, "dimensions"));
        if (!Dimensions)
        {
            return {};
        }
        std::vector<std::string> Parts;
        const auto AddPart = [&](std::string_view Key, const char* Prefix)
        {
            const rapidjson::Value* Value = OrvCardFindField(Dimensions, Key);
            if (Value && Value->IsNumber() && Value->GetDouble() > 0.0)
            {
                Parts.push_back(FOrvStrings::Printf("%s%g", Prefix, Value->GetDouble()));
            }
        };
        AddPart("width", "");
        AddPart("depth", "");
        AddPart("height", "H");
        if (Parts.empty())
        {
            return {};
        }
        const std::string Separator = std::string(" ") + std::string(OrvCardTimes) + " ";
        return OrvCardJoin(Parts, Separator) + " cm";
    }

    std::string FOrvMcpFormatter::MaterialsLine(const rapidjson::Value* Product)
    {
        const rapidjson::Value* Materials = OrvCardFindField(Product, "materials");
        if (!Materials)
        {
            return {};
        }
        std::string Text;
        if (OrvCardTryGetString(*Materials, Text) && !Text.empty())
        {
            return Text;
        }
        if (!Materials->IsArray())
        {
            return {};
        }
        std::vector<std::string> Names;
        for (const rapidjson::Value& Element : Materials->GetArray())
        {
            if (Element.IsString())
            {
                Names.emplace_back(Element.GetString(), Element.GetStringLength());
            }
        }
        return OrvCardJoin(Names, ", ");
    }

    std::string FOrvMcpFormatter::Truncate(std::string_view Text, std::int32_t MaxLen)
    {
        if (FOrvUtf16Text::Length(Text) <= MaxLen)
        {
            return std::string(Text);
        }
        // Take whole characters while they fit: a pair that would straddle the limit stays out entirely.
        std::int64_t Units = 0;
        std::size_t CutBytes = 0;
        std::int64_t LastSpaceUnit = -1;
        std::size_t LastSpaceByte = 0;
        while (CutBytes < Text.size())
        {
            const FOrvUtf16Text::FStep Step = FOrvUtf16Text::Next(Text, CutBytes);
            if (Units + Step.Units > MaxLen)
            {
                break;
            }
            if (Step.CodePoint == U' ')
            {
                LastSpaceUnit = Units;
                LastSpaceByte = CutBytes;
            }
            CutBytes += Step.Bytes;
            Units += Step.Units;
        }
        if (LastSpaceUnit >= 0 && LastSpaceUnit > static_cast<std::int64_t>(MaxLen) - 40)
        {
            CutBytes = LastSpaceByte;
        }
        return std::string(Text.substr(0, CutBytes)) + std::string(OrvCardEllipsis);
    }

    std::string FOrvMcpFormatter::CatalogUrl(const rapidjson::Value* Product)
    {
        static const std::string ProductLinkPrefix =
            std::string(FOrvConstants::CatalogSiteBaseUrl) + "/go/product/";
        const std::string Id = FieldText(Product, "mongo_id");
        return Id.empty() ? std::string() : ProductLinkPrefix + Id;
    }

    std::string FOrvMcpFormatter::Title(const rapidjson::Value* Product)
    {
        std::string Name = FieldText(Product, "name");
        return Name.empty() ? FieldText(Product, "asset_name") : Name;
    }

    std::string FOrvMcpFormatter::ProductCard(const rapidjson::Value* Product)
    {
        Product = OrvCardObjectOf(Product);
        if (!Product)
        {
            return "_No product._";
        }
        std::string CardTitle = Title(Product);
        const std::string Brand = BrandName(Product);
        const std::string Designer = DesignerName(Product);
        const std::string Suffix =
            Brand.empty() ? std::string() : " " + std::string(OrvCardEmDash) + " " + Brand;
        if (CardTitle.empty())
        {
            CardTitle = "Product";
        }

        std::vector<std::string> Lines;
        Lines.push_back("### " + CardTitle + Suffix);

        std::vector<std::string> Meta;
        const auto AddMeta = [&](const char* Label, const std::string& Value)
        {
            if (!Value.empty())
            {
                Meta.push_back(std::string(Label) + ": **" + Value + "**");
            }
        };
        AddMeta("Designer", Designer);
        AddMeta("Year", FieldText(Product, "year"));
        AddMeta("Collection", FieldText(Product, "collection"));
        if (!Meta.empty())
        {
            Lines.push_back(OrvCardJoin(Meta, " " + std::string(OrvCardMiddleDot) + " "));
        }

        std::vector<std::string> Details;
        const auto AddDetail = [&](const char* Label, const std::string& Value)
        {
            if (!Value.empty())
            {
                Details.push_back("- **" + std::string(Label) + "** " + std::string(OrvCardEmDash) + " " +
                                  Value);
            }
        };
        AddDetail("Dimensions", DimensionsLine(Product));
        AddDetail("Materials", MaterialsLine(Product));
        AddDetail("Category", FieldText(Product, "category"));
        if (!Details.empty())
        {
            Lines.emplace_back();
            Lines.insert(Lines.end(), Details.begin(), Details.end());
        }

        const std::string Description = FieldText(Product, "description");
        if (!Description.empty())
        {
            Lines.emplace_back();
            Lines.push_back("> " + Truncate(FOrvUtf16Text::TrimStartAndEnd(Description), 280));
        }

        const std::string Url = CatalogUrl(Product);
        if (!Url.empty())
        {
            Lines.emplace_back();
            Lines.push_back("[View on ORVESSA catalog " + std::string(OrvCardRightArrow) + "](" + Url + ")");
        }
        return OrvCardJoin(Lines, "\n");
    }

    std::string FOrvMcpFormatter::ProductListCards(std::span<const rapidjson::Value* const> Products,
                                                   std::int32_t MaxFullCards)
    {
        if (Products.empty())
        {
            return "_No products found._";
        }
        const auto IsNullEntry = [](const rapidjson::Value* Entry) { return !Entry || Entry->IsNull(); };
        const std::size_t Count = Products.size();
        // A limit of zero or less shows no full card; the list then opens with the rule.
        const std::size_t Full =
            MaxFullCards <= 0 ? 0 : std::min(Count, static_cast<std::size_t>(MaxFullCards));

        std::vector<std::string> Cards;
        for (std::size_t Index = 0; Index < Full; ++Index)
        {
            if (!IsNullEntry(Products[Index]))
            {
                Cards.push_back(ProductCard(Products[Index]));
            }
        }
        std::string Body = OrvCardJoin(Cards, OrvCardRule);
        if (Count <= Full)
        {
            return Body;
        }

        const std::size_t Remaining = Count - Full;
        std::vector<std::string> Compact;
        for (std::size_t Index = Full; Index < Count; ++Index)
        {
            if (IsNullEntry(Products[Index]))
            {
                continue;
            }
            const rapidjson::Value* Product = OrvCardObjectOf(Products[Index]);
            std::string Label = Title(Product);
            const std::string Brand = BrandName(Product);
            if (!Brand.empty())
            {
                Label += " " + std::string(OrvCardEmDash) + " " + Brand;
            }
            const std::string Url = CatalogUrl(Product);
            Compact.push_back(Url.empty() ? "- " + Label : "- [" + Label + "](" + Url + ")");
        }
        Body += OrvCardRule;
        Body +=
            "_" + std::to_string(Remaining) + " more result" + (Remaining == 1 ? "" : "s") + " (compact):_\n";
        Body += OrvCardJoin(Compact, "\n");
        return Body;
    }
} // namespace OrvWebBridge
