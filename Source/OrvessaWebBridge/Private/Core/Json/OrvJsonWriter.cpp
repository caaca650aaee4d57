#include "Core/Json/OrvJsonWriter.h"

#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvRapidJson.h"

#include <array>
#include <cmath>

namespace OrvWebBridge
{
    namespace
    {
        // 0 = copy as is, 'u' = \u00XX, '8' = a non-ASCII byte whose sequence must be valid UTF-8,
        // anything else = the character after the backslash.
        constexpr std::array<char, 256> MakeOrvJsonEscapeTable()
        {
            std::array<char, 256> Table{};
            for (int Index = 0; Index < 0x20; ++Index)
            {
                Table[Index] = 'u';
            }
            for (int Index = 0x80; Index < 0x100; ++Index)
            {
                Table[Index] = '8';
            }
            Table['\b'] = 'b';
            Table['\f'] = 'f';
            Table['\n'] = 'n';
            Table['\r'] = 'r';
            Table['\t'] = 't';
            Table['"'] = '"';
            Table['\\'] = '\\';
            return Table;
        }
        constexpr std::array<char, 256> OrvJsonEscapeTable = MakeOrvJsonEscapeTable();

        // Integral doubles below 2^53 print exactly as integers, which is what the engine prints for them.
        constexpr double OrvMaxExactInteger = 9007199254740992.0;
    } // namespace

    // Everything written is valid UTF-8: ill-formed input (bytes that are not UTF-8, or a lone surrogate
    // that a \udc00 escape produced) becomes U+FFFD here, the one place all JSON text passes through.
    void OrvAppendJsonEscaped(std::string& Out, std::string_view Value)
    {
        const char* Run = Value.data();
        const char* const End = Value.data() + Value.size();
        for (const char* Cursor = Run; Cursor != End; ++Cursor)
        {
            const char Escape = OrvJsonEscapeTable[static_cast<unsigned char>(*Cursor)];
            if (Escape == 0)
            {
                continue;
            }
            if (Escape == '8')
            {
                bool bValid = false;
                const std::size_t Length =
                    FOrvUtf8::Measure({Cursor, static_cast<std::size_t>(End - Cursor)}, bValid);
                if (!bValid)
                {
                    Out.append(Run, Cursor);
                    Out.append(FOrvUtf8::Replacement);
                    Run = Cursor + Length;
                }
                Cursor += Length - 1;
                continue;
            }
            Out.append(Run, Cursor);
            if (Escape == 'u')
            {
                static constexpr char Hex[] = "0123456789abcdef";
                const unsigned char Code = static_cast<unsigned char>(*Cursor);
                const char Unicode[6] = {'\\', 'u', '0', '0', Hex[Code >> 4], Hex[Code & 0xF]};
                Out.append(Unicode, sizeof(Unicode));
            }
            else
            {
                const char Pair[2] = {'\\', Escape};
                Out.append(Pair, sizeof(Pair));
            }
            Run = Cursor + 1;
        }
        Out.append(Run, End);
    }

    void OrvAppendJsonNumber(std::string& Out, double Value)
    {
        char Buffer[32];
        char* End = Buffer;
        if (!std::isfinite(Value))
        {
            Out.append("null");
            return;
        }
        if (Value == std::trunc(Value) && std::fabs(Value) < OrvMaxExactInteger)
        {
            End = rapidjson::internal::i64toa(static_cast<std::int64_t>(Value), Buffer);
        }
        else
        {
            End = rapidjson::internal::dtoa(Value, Buffer);
        }
        Out.append(Buffer, End);
    }

    FOrvJsonWriter::FOrvJsonWriter(std::string& InOut, EOrvJsonStyle InStyle) : Out(InOut), Style(InStyle) {}

    void FOrvJsonWriter::LineTerminator()
    {
        if (Style == EOrvJsonStyle::Pretty)
        {
            Out.append("\r\n", 2);
        }
    }

    void FOrvJsonWriter::Tabs()
    {
        if (Style == EOrvJsonStyle::Pretty)
        {
            Out.append(static_cast<std::size_t>(IndentLevel), '\t');
        }
    }

    void FOrvJsonWriter::Space()
    {
        if (Style == EOrvJsonStyle::Pretty)
        {
            Out.push_back(' ');
        }
    }

    void FOrvJsonWriter::WriteCommaIfNeeded()
    {
        if (Previous != EToken::CurlyOpen && Previous != EToken::SquareOpen &&
            Previous != EToken::Identifier && Previous != EToken::None)
        {
            Out.push_back(',');
        }
    }

    void FOrvJsonWriter::WriteIdentifier(std::string_view Key)
    {
        WriteCommaIfNeeded();
        LineTerminator();
        Tabs();
        Out.push_back('"');
        OrvAppendJsonEscaped(Out, Key);
        Out.append("\":", 2);
        Previous = EToken::Identifier;
    }

    // Array elements: numbers, booleans and null follow on the same line; strings, objects and arrays
    // start a new line, as the engine's pretty policy lays them out.
    void FOrvJsonWriter::BeforeElement(bool bShortValue)
    {
        if (Previous == EToken::None)
        {
            return;
        }
        WriteCommaIfNeeded();
        const bool bPreviousShort = Previous == EToken::Number || Previous == EToken::True ||
                                    Previous == EToken::False || Previous == EToken::Null;
        if (bShortValue && (Previous == EToken::SquareOpen || bPreviousShort))
        {
            Space();
        }
        else
        {
            LineTerminator();
            Tabs();
        }
    }

    void FOrvJsonWriter::BeginObject()
    {
        BeforeElement(false);
        Out.push_back('{');
        ++IndentLevel;
        Previous = EToken::CurlyOpen;
    }

    void FOrvJsonWriter::BeginObject(std::string_view Key)
    {
        WriteIdentifier(Key);
        LineTerminator();
        Tabs();
        Out.push_back('{');
        ++IndentLevel;
        Previous = EToken::CurlyOpen;
    }

    void FOrvJsonWriter::EndObject()
    {
        LineTerminator();
        --IndentLevel;
        Tabs();
        Out.push_back('}');
        Previous = EToken::CurlyClose;
    }

    void FOrvJsonWriter::BeginArray()
    {
        BeforeElement(false);
        Out.push_back('[');
        ++IndentLevel;
        Previous = EToken::SquareOpen;
    }

    void FOrvJsonWriter::BeginArray(std::string_view Key)
    {
        WriteIdentifier(Key);
        Space();
        Out.push_back('[');
        ++IndentLevel;
        Previous = EToken::SquareOpen;
    }

    void FOrvJsonWriter::EndArray()
    {
        --IndentLevel;
        if (Previous == EToken::SquareClose || Previous == EToken::CurlyClose || Previous == EToken::String)
        {
            LineTerminator();
            Tabs();
        }
        else if (Previous != EToken::SquareOpen)
        {
            Space();
        }
        Out.push_back(']');
        Previous = EToken::SquareClose;
    }

    void FOrvJsonWriter::String(std::string_view Value)
    {
        BeforeElement(false);
        Out.push_back('"');
        OrvAppendJsonEscaped(Out, Value);
        Out.push_back('"');
        Previous = EToken::String;
    }

    void FOrvJsonWriter::String(std::string_view Key, std::string_view Value)
    {
        WriteIdentifier(Key);
        Space();
        Out.push_back('"');
        OrvAppendJsonEscaped(Out, Value);
        Out.push_back('"');
        Previous = EToken::String;
    }

    void FOrvJsonWriter::UnescapedString(std::string_view Key, std::string_view Value)
    {
        WriteIdentifier(Key);
        Space();
        Out.push_back('"');
        Out.append(Value);
        Out.push_back('"');
        Previous = EToken::String;
    }

    void FOrvJsonWriter::Number(double Value)
    {
        BeforeElement(true);
        OrvAppendJsonNumber(Out, Value);
        Previous = EToken::Number;
    }

    void FOrvJsonWriter::Number(std::string_view Key, double Value)
    {
        WriteIdentifier(Key);
        Space();
        OrvAppendJsonNumber(Out, Value);
        Previous = EToken::Number;
    }

    void FOrvJsonWriter::Integer(std::int64_t Value)
    {
        BeforeElement(true);
        char Buffer[24];
        Out.append(Buffer, rapidjson::internal::i64toa(Value, Buffer));
        Previous = EToken::Number;
    }

    void FOrvJsonWriter::Integer(std::string_view Key, std::int64_t Value)
    {
        WriteIdentifier(Key);
        Space();
        char Buffer[24];
        Out.append(Buffer, rapidjson::internal::i64toa(Value, Buffer));
        Previous = EToken::Number;
    }

    void FOrvJsonWriter::Bool(bool bValue)
    {
        BeforeElement(true);
        Out.append(bValue ? "true" : "false");
        Previous = bValue ? EToken::True : EToken::False;
    }

    void FOrvJsonWriter::Bool(std::string_view Key, bool bValue)
    {
        WriteIdentifier(Key);
        Space();
        Out.append(bValue ? "true" : "false");
        Previous = bValue ? EToken::True : EToken::False;
    }

    void FOrvJsonWriter::Null()
    {
        BeforeElement(true);
        Out.append("null");
        Previous = EToken::Null;
    }

    void FOrvJsonWriter::Null(std::string_view Key)
    {
        WriteIdentifier(Key);
        Space();
        Out.append("null");
        Previous = EToken::Null;
    }

    void FOrvJsonWriter::Vector3(std::string_view Key, double A, double B, double C)
    {
        BeginArray(Key);
        Number(A);
        Number(B);
        Number(C);
        EndArray();
    }

    static std::string_view OrvJsonStringView(const rapidjson::Value& Value)
    {
        return {Value.GetString(), Value.GetStringLength()};
    }

    void FOrvJsonWriter::WriteElementValue(const rapidjson::Value& Value)
    {
        switch (Value.GetType())
        {
        case rapidjson::kNullType:
            Null();
            break;
        case rapidjson::kFalseType:
        case rapidjson::kTrueType:
            Bool(Value.GetBool());
            break;
        case rapidjson::kStringType:
            String(OrvJsonStringView(Value));
            break;
        case rapidjson::kObjectType:
            BeginObject();
            for (auto Member = Value.MemberBegin(); Member != Value.MemberEnd(); ++Member)
            {
                this->Value(OrvJsonStringView(Member->name), Member->value);
            }
            EndObject();
            break;
        case rapidjson::kArrayType:
            BeginArray();
            for (const auto& Element : Value.GetArray())
            {
                WriteElementValue(Element);
            }
            EndArray();
            break;
        case rapidjson::kNumberType:
            if (Value.IsInt64())
            {
                Integer(Value.GetInt64());
            }
            else if (Value.IsUint64())
            {
                BeforeElement(true);
                char Buffer[24];
                Out.append(Buffer, rapidjson::internal::u64toa(Value.GetUint64(), Buffer));
                Previous = EToken::Number;
            }
            else
            {
                Number(Value.GetDouble());
            }
            break;
        }
    }

    void FOrvJsonWriter::Value(const rapidjson::Value& Value)
    {
        WriteElementValue(Value);
    }

    void FOrvJsonWriter::Value(std::string_view Key, const rapidjson::Value& Value)
    {
        switch (Value.GetType())
        {
        case rapidjson::kObjectType:
            BeginObject(Key);
            for (auto Member = Value.MemberBegin(); Member != Value.MemberEnd(); ++Member)
            {
                this->Value(OrvJsonStringView(Member->name), Member->value);
            }
            EndObject();
            break;
        case rapidjson::kArrayType:
            BeginArray(Key);
            for (const auto& Element : Value.GetArray())
            {
                WriteElementValue(Element);
            }
            EndArray();
            break;
        default:
            // Scalars: write the identifier, then the value as the engine does (same line, one space).
            WriteIdentifier(Key);
            Space();
            WriteMemberValue(Value);
            break;
        }
    }

    void FOrvJsonWriter::CondensedValue(std::string_view Key, const rapidjson::Value& Value)
    {
        if (!Value.IsArray() && !Value.IsObject())
        {
            this->Value(Key, Value);
            return;
        }
        WriteIdentifier(Key);
        Space();
        const EOrvJsonStyle OuterStyle = Style;
        Style = EOrvJsonStyle::Condensed;
        WriteElementValue(Value);
        Style = OuterStyle;
    }

    void FOrvJsonWriter::WriteMemberValue(const rapidjson::Value& Value)
    {
        switch (Value.GetType())
        {
        case rapidjson::kNullType:
            Out.append("null");
            Previous = EToken::Null;
            break;
        case rapidjson::kFalseType:
            Out.append("false");
            Previous = EToken::False;
            break;
        case rapidjson::kTrueType:
            Out.append("true");
            Previous = EToken::True;
            break;
        case rapidjson::kStringType:
            Out.push_back('"');
            OrvAppendJsonEscaped(Out, OrvJsonStringView(Value));
            Out.push_back('"');
            Previous = EToken::String;
            break;
        case rapidjson::kNumberType:
        {
            char Buffer[32];
            if (Value.IsInt64())
            {
                Out.append(Buffer, rapidjson::internal::i64toa(Value.GetInt64(), Buffer));
            }
            else if (Value.IsUint64())
            {
                Out.append(Buffer, rapidjson::internal::u64toa(Value.GetUint64(), Buffer));
            }
            else
            {
                OrvAppendJsonNumber(Out, Value.GetDouble());
            }
            Previous = EToken::Number;
            break;
        }
        default:
            break;
        }
    }
} // namespace OrvWebBridge
