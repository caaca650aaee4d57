#pragma once

#include "Core/Json/OrvRapidJson.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief The engine's two JSON print policies. */
    enum class EOrvJsonStyle
    {
        Pretty,    ///< one member per line, CR LF line ends, one tab per level (TPrettyJsonPrintPolicy)
        Condensed, ///< no whitespace at all (TCondensedJsonPrintPolicy)
    };

    /**
     * @brief Streaming JSON writer that lays text out exactly as the engine's TJsonWriter does.
     *
     * Keyed calls write an object member, unkeyed calls an array element or the root. Members come out
     * in call order. Numbers are written in their shortest round-trip form, integral values without a
     * fraction (300, 45.3); non-finite numbers become null because JSON cannot express them.
     */
    class FOrvJsonWriter
    {
    public:
        explicit FOrvJsonWriter(std::string& InOut, EOrvJsonStyle InStyle = EOrvJsonStyle::Pretty);

        void BeginObject();
        void BeginObject(std::string_view Key);
        void EndObject();
        void BeginArray();
        void BeginArray(std::string_view Key);
        void EndArray();

        void String(std::string_view Value);
        void String(std::string_view Key, std::string_view Value);
        void Number(double Value);
        void Number(std::string_view Key, double Value);
        void Integer(std::int64_t Value);
        void Integer(std::string_view Key, std::int64_t Value);
        void Bool(bool bValue);
        void Bool(std::string_view Key, bool bValue);
        void Null();
        void Null(std::string_view Key);

        /** Writes a parsed value (of any type, recursively) as an element or as a member. */
        void Value(const rapidjson::Value& Value);
        void Value(std::string_view Key, const rapidjson::Value& Value);

        /**
         * A member whose array or object value is written condensed, on the member's line, whatever the
         * style: pretty layout indents every line by its depth, so deeply nested text from outside would
         * grow with the square of its depth. Scalars are written as Value writes them.
         */
        void CondensedValue(std::string_view Key, const rapidjson::Value& Value);

        /** A string member whose text the caller guarantees needs no escaping (Base64): copied as is. */
        void UnescapedString(std::string_view Key, std::string_view Value);

        /** Three numbers as an array member, e.g. "location": [ 1, 2, 3 ]. */
        void Vector3(std::string_view Key, double A, double B, double C);

    private:
        enum class EToken : std::uint8_t
        {
            None,
            CurlyOpen,
            CurlyClose,
            SquareOpen,
            SquareClose,
            Identifier,
            String,
            Number,
            True,
            False,
            Null,
        };

        void WriteIdentifier(std::string_view Key);
        void WriteCommaIfNeeded();
        void BeforeElement(bool bShortValue);
        void LineTerminator();
        void Tabs();
        void Space();
        void WriteMemberValue(const rapidjson::Value& Value);
        void WriteElementValue(const rapidjson::Value& Value);

        std::string& Out;
        EOrvJsonStyle Style;
        int IndentLevel = 0;
        EToken Previous = EToken::None;
    };

    /**
     * @brief Appends Value to Out as JSON string contents (no quotes), escaped as the engine escapes, with
     * every ill-formed UTF-8 part replaced by U+FFFD.
     */
    void OrvAppendJsonEscaped(std::string& Out, std::string_view Value);

    /** @brief Appends a number in the writer's format (shortest round-trip, integral without fraction). */
    void OrvAppendJsonNumber(std::string& Out, double Value);
} // namespace OrvWebBridge
