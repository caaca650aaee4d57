#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Why a text did not parse: RapidJSON's code and offset, or nesting beyond FOrvJson::MaxDepth. */
    struct FOrvJsonParseError
    {
        rapidjson::ParseErrorCode Code = rapidjson::kParseErrorNone;
        std::size_t Offset = 0; ///< byte offset of the problem in the text
        bool bTooDeep = false;
    };

    /** @brief How strictly a reader wants its text read. */
    struct FOrvJsonParseOptions
    {
        /** Refuse text that is not UTF-8, escapes included (else it passes and the writer repairs it). */
        bool bValidateUtf8 = false;
    };

    /** @brief Small read helpers over RapidJSON values, in the spirit of FJsonObject's TryGet* calls. */
    struct FOrvJson
    {
        /** Deepest nesting of arrays and objects any text may have; no real message comes near it. */
        static constexpr int MaxDepth = 256;

        /**
         * The one way text becomes JSON, for every reader of the core and the host. Parses without
         * recursion, so hostile nesting cannot exhaust the stack, and refuses nesting deeper than MaxDepth,
         * so nothing that walks the value later recurses deeper than that. Numbers are read correctly
         * rounded (as strtod reads them), so an id or a coordinate written back in its shortest form is
         * the number that came in. False on failure, with the reason in OutError when given.
         */
        static bool Parse(std::string_view Text, rapidjson::Document& Out,
                          FOrvJsonParseError* OutError = nullptr, FOrvJsonParseOptions Options = {});

        /** Parses Text into Out; true only when it is valid JSON whose root is an object. */
        static bool ParseObject(std::string_view Text, rapidjson::Document& Out);

        /**
         * The member named Key of an object value as the engine's FJsonObject finds it: names compare
         * ignoring case and a repeated name yields its last value. Null when absent or not an object.
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

        /** Describes where a parse failed: "line L, column C: reason"; with no error, that the root is not
         * an object.
         */
        static std::string DescribeParseError(std::string_view Text, const FOrvJsonParseError& Error);
    };
} // namespace OrvWebBridge
