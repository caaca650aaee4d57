#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Small read helpers over RapidJSON values, in the spirit of FJsonObject's TryGet* calls. */
    struct FOrvJson
    {
        /** Parses Text into Out; true only when it is valid JSON whose root is an object. */
        static bool ParseObject(std::string_view Text, rapidjson::Document& Out);

        /** The member named Key of an object value (first one when repeated); null when absent or not an
         * object.
         */
        static const rapidjson::Value* FindField(const rapidjson::Value& Object, std::string_view Key);

        /** The member as an object; null when absent or of another type. */
        static const rapidjson::Value* TryGetObjectField(const rapidjson::Value& Object,
                                                         std::string_view Key);

        /** The member as an array; null when absent or of another type. */
        static const rapidjson::Value* TryGetArrayField(const rapidjson::Value& Object, std::string_view Key);

        /** Copies a string member into Out; false (Out untouched) when absent or not a JSON string. */
        static bool TryGetStringField(const rapidjson::Value& Object, std::string_view Key, std::string& Out);

        /** The string member, or "" when absent or not a string. */
        static std::string GetStringField(const rapidjson::Value& Object, std::string_view Key);

        /** A string value's text as a view. */
        static std::string_view View(const rapidjson::Value& StringValue)
        {
            return {StringValue.GetString(), StringValue.GetStringLength()};
        }

        /** Describes where a parse failed: "line L, column C: reason". */
        static std::string DescribeParseError(std::string_view Text, const rapidjson::Document& Failed);
    };
} // namespace OrvWebBridge
