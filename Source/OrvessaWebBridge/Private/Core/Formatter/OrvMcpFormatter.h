#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief Turns catalogue product records into short Markdown for an AI client: one full card per
     * product, or a list that shows the first products in full and the rest as one-line links.
     *
     * Stateless. A record is a JSON object as the catalogue API returns it; a null pointer (or a value
     * that is not an object) is a null record. Every field is optional: a missing, null or wrongly typed
     * field only drops the line or part that would show it. Text lengths count UTF-16 code units, as the
     * engine's strings do. No tool calls this yet; it is ready for a product-search tool.
     */
    class FOrvMcpFormatter
    {
    public:
        /** Text cut to at most MaxLen UTF-16 units (back to a word boundary when that loses fewer than 40)
         * followed by an ellipsis; shorter text comes back unchanged. A character is never split. */
        static std::string Truncate(std::string_view Text, std::int32_t MaxLen);

        /** The product's catalogue page, or "" when the record has no "mongo_id". */
        static std::string CatalogUrl(const rapidjson::Value* Product);

        /** The full Markdown card of one product, lines joined with "\n" and no trailing line feed. */
        static std::string ProductCard(const rapidjson::Value* Product);

        /**
         * The first MaxFullCards products as full cards between horizontal rules, then the rest as a
         * compact list of links. A null entry (null pointer or JSON null) shows nothing but still counts
         * towards the "more results" number.
         */
        static std::string ProductListCards(std::span<const rapidjson::Value* const> Products,
                                            std::int32_t MaxFullCards);

    private:
        /** The field as text: strings as they are, numbers and booleans as the engine's JSON values print
         * them; "" for a null record, a missing field, null, arrays and objects. */
        static std::string FieldText(const rapidjson::Value* Obj, std::string_view Key);

        /** The "name" of the first element of "brand" / "designed_by"; later elements are never shown. */
        static std::string BrandName(const rapidjson::Value* Product);
        static std::string DesignerName(const rapidjson::Value* Product);

        /** "80 × 45 × H75 cm" from the positive numbers of "dimensions", or "". */
        static std::string DimensionsLine(const rapidjson::Value* Product);

        /** "materials" as a string, or its string elements joined with ", ", or "". */
        static std::string MaterialsLine(const rapidjson::Value* Product);

        /** "name", or "asset_name" when the name is empty. */
        static std::string Title(const rapidjson::Value* Product);

        static std::string FirstElementName(const rapidjson::Value* Product, std::string_view ArrayKey);
    };
} // namespace OrvWebBridge
