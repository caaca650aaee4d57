#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief The product records that `orv-host cards` reads: parsed, located and in input order. */
    struct FOrvCardsInput
    {
        /**
         * Parses Text (a leading UTF-8 byte order mark is skipped) into Document and lists its records:
         * the elements of a root array, or of a root object's "products" member, which may also be an
         * object whose member values are the records. On failure returns false and says why in OutError
         * ("invalid JSON at line L, column C: reason" for text that is not JSON).
         */
        static bool Read(std::string_view Text, rapidjson::Document& Document,
                         std::vector<const rapidjson::Value*>& OutRecords, std::string& OutError);
    };
} // namespace OrvWebBridge
