#include "Core/Json/OrvJson.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvRapidJson.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace OrvWebBridge
{
    namespace
    {
        // Whether a number that a double cannot hold is too large (rather than too small): the decimal
        // position of its first significant digit plus its exponent decides.
        bool OrvJsonIsBeyondDouble(std::string_view Number)
        {
            const std::size_t ExponentAt = Number.find_first_of("eE");
            const std::string_view Mantissa = Number.substr(0, ExponentAt);
            long long Exponent = 0;
            if (ExponentAt != std::string_view::npos)
            {
                std::string_view Written = Number.substr(ExponentAt + 1);
                const bool bNegative = !Written.empty() && Written.front() == '-';
                if (!Written.empty() && (Written.front() == '+' || Written.front() == '-'))
                {
                    Written.remove_prefix(1);
                }
                // Past 2^40 no text is long enough to make up for the exponent; the clamp also keeps the sum
                // below from overflowing.
                constexpr long long Beyond = 1LL << 40;
                if (std::from_chars(Written.data(), Written.data() + Written.size(), Exponent).ec !=
                    std::errc())
                {
                    Exponent = Beyond;
                }
                Exponent = std::min(Exponent, Beyond);
                Exponent = bNegative ? -Exponent : Exponent;
            }
            const std::size_t Point = std::min(Mantissa.find('.'), Mantissa.size());
            const std::size_t First = Mantissa.find_first_of("123456789");
            if (First == std::string_view::npos)
            {
                return false; // zero, whatever its exponent
            }
            const long long Magnitude = First < Point ? static_cast<long long>(Point - First)
                                                      : -static_cast<long long>(First - Point - 1);
            return Magnitude + Exponent > 0;
        }

        // Forwards RapidJSON's events to the document and stops the parse at the first array or object
        // that would nest deeper than FOrvJson::MaxDepth.
        class FOrvJsonDepthLimit
        {
        public:
            FOrvJsonDepthLimit(rapidjson::Document& InTarget, bool bInValidateUtf8)
                : Target(InTarget), bValidateUtf8(bInValidateUtf8)
            {
            }

            bool Null() { return Target.Null(); }
            bool Bool(bool bValue) { return Target.Bool(bValue); }
            // Numbers arrive as text (kParseNumbersAsStringsFlag) and are converted in RawNumber: RapidJSON
            // 1.1.0's own conversion is not correctly rounded, and its full-precision one has undefined
            // behaviour on zeros written with a fraction and on long fractions.
            bool Int(int Value) { return Target.Int(Value); }
            bool Uint(unsigned Value) { return Target.Uint(Value); }
            bool Int64(std::int64_t Value) { return Target.Int64(Value); }
            bool Uint64(std::uint64_t Value) { return Target.Uint64(Value); }
            bool Double(double Value) { return Target.Double(Value); }
            // Converted as strtod converts: a number too large for a double (RapidJSON would let "21e308"
            // round to infinity, which JSON can only write back as null) is refused; one too small is zero.
            bool RawNumber(const char* Text, rapidjson::SizeType Length, bool)
            {
                const std::string_view Number(Text, Length);
                if (Number.find_first_of(".eE") == std::string_view::npos)
                {
                    // Integers as RapidJSON keeps them; beyond 64 bits, a double like any other number.
                    if (Number.front() == '-')
                    {
                        std::int64_t Value = 0;
                        if (std::from_chars(Text, Text + Length, Value).ec == std::errc())
                        {
                            return Target.Int64(Value);
                        }
                    }
                    else
                    {
                        std::uint64_t Value = 0;
                        if (std::from_chars(Text, Text + Length, Value).ec == std::errc())
                        {
                            return Target.Uint64(Value);
                        }
                    }
                }
                double Value = 0.0;
                if (std::from_chars(Text, Text + Length, Value).ec == std::errc::result_out_of_range)
                {
                    if (OrvJsonIsBeyondDouble(Number))
                    {
                        ValueError = rapidjson::kParseErrorNumberTooBig;
                        return false;
                    }
                    Value = Number.front() == '-' ? -0.0 : 0.0; // too small: zero, as strtod underflows
                }
                return Target.Double(Value);
            }
            bool String(const char* Text, rapidjson::SizeType Length, bool bCopy)
            {
                return CheckText(Text, Length) && Target.String(Text, Length, bCopy);
            }
            bool Key(const char* Text, rapidjson::SizeType Length, bool bCopy)
            {
                return CheckText(Text, Length) && Target.Key(Text, Length, bCopy);
            }
            bool StartObject() { return Enter() && Target.StartObject(); }
            bool EndObject(rapidjson::SizeType MemberCount)
            {
                --Depth;
                return Target.EndObject(MemberCount);
            }
            bool StartArray() { return Enter() && Target.StartArray(); }
            bool EndArray(rapidjson::SizeType ElementCount)
            {
                --Depth;
                return Target.EndArray(ElementCount);
            }

            bool bTooDeep = false;
            rapidjson::ParseErrorCode ValueError = rapidjson::kParseErrorNone; ///< of one string or number

        private:
            // RapidJSON validates the bytes of the text, not what escapes decode to: a lone \udc00 becomes
            // bytes that are not UTF-8. A read that asked for valid UTF-8 refuses those too.
            bool CheckText(const char* Text, rapidjson::SizeType Length)
            {
                if (bValidateUtf8 && !FOrvUtf8::IsValid({Text, Length}))
                {
                    ValueError = rapidjson::kParseErrorStringInvalidEncoding;
                    return false;
                }
                return true;
            }

            bool Enter()
            {
                bTooDeep = ++Depth > FOrvJson::MaxDepth;
                return !bTooDeep;
            }

            rapidjson::Document& Target;
            bool bValidateUtf8 = false;
            int Depth = 0;
        };

        template <unsigned Flags>
        bool OrvJsonParse(std::string_view Text, rapidjson::Document& Out, FOrvJsonParseError& OutError)
        {
            rapidjson::MemoryStream Bytes(Text.data(), Text.size());
            rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> Stream(Bytes);
            rapidjson::Reader Reader;
            rapidjson::ParseResult Result;
            bool bTooDeep = false;
            const auto Generate = [&](rapidjson::Document& Target)
            {
                FOrvJsonDepthLimit Handler(Target, (Flags & rapidjson::kParseValidateEncodingFlag) != 0);
                Result = Reader.Parse<Flags | rapidjson::kParseIterativeFlag>(Stream, Handler);
                bTooDeep = Handler.bTooDeep;
                if (Handler.ValueError != rapidjson::kParseErrorNone)
                {
                    Result.Set(Handler.ValueError, Result.Offset());
                }
                return !Result.IsError();
            };
            Out.SetNull();
            Out.Populate(Generate);
            OutError = {};
            if (!Result.IsError())
            {
                return true;
            }
            OutError.Code = Result.Code();
            OutError.Offset = Result.Offset(); // for nesting, the bracket that went too deep
            OutError.bTooDeep = bTooDeep;
            return false;
        }
    } // namespace

    bool FOrvJson::Parse(std::string_view Text, rapidjson::Document& Out, FOrvJsonParseError* OutError,
                         FOrvJsonParseOptions Options)
    {
        FOrvJsonParseError Error;
        constexpr unsigned Validate = rapidjson::kParseValidateEncodingFlag;
        constexpr unsigned Precise = rapidjson::kParseNumbersAsStringsFlag; // converted in RawNumber
        const bool bOk = Options.bValidateUtf8 ? OrvJsonParse<Validate | Precise>(Text, Out, Error)
                                               : OrvJsonParse<Precise>(Text, Out, Error);
        if (OutError)
        {
            *OutError = Error;
        }
        return bOk;
    }

    bool FOrvJson::ParseObject(std::string_view Text, rapidjson::Document& Out)
    {
        return Parse(Text, Out) && Out.IsObject();
    }

    const rapidjson::Value* FOrvJson::FindField(const rapidjson::Value& Object, std::string_view Key)
    {
        if (!Object.IsObject())
        {
            return nullptr;
        }
        const rapidjson::Value* Found = nullptr;
        for (auto It = Object.MemberBegin(); It != Object.MemberEnd(); ++It)
        {
            if (FOrvStrings::EqualsIgnoreCase(View(It->name), Key))
            {
                Found = &It->value;
            }
        }
        return Found;
    }

    const rapidjson::Value* FOrvJson::TryGetObjectField(const rapidjson::Value& Object, std::string_view Key)
    {
        const rapidjson::Value* Field = FindField(Object, Key);
        return Field && Field->IsObject() ? Field : nullptr;
    }

    const rapidjson::Value* FOrvJson::TryGetArrayField(const rapidjson::Value& Object, std::string_view Key)
    {
        const rapidjson::Value* Field = FindField(Object, Key);
        return Field && Field->IsArray() ? Field : nullptr;
    }

    bool FOrvJson::TryGetStringField(const rapidjson::Value& Object, std::string_view Key, std::string& Out)
    {
        const rapidjson::Value* Field = FindField(Object, Key);
        if (!Field || !Field->IsString())
        {
            return false;
        }
        Out.assign(Field->GetString(), Field->GetStringLength());
        return true;
    }

    std::string FOrvJson::GetStringField(const rapidjson::Value& Object, std::string_view Key)
    {
        std::string Result;
        TryGetStringField(Object, Key, Result);
        return Result;
    }

    std::string FOrvJson::DescribeParseError(std::string_view Text, const FOrvJsonParseError& Error)
    {
        const bool bFailed = Error.bTooDeep || Error.Code != rapidjson::kParseErrorNone;
        std::size_t Offset = bFailed ? Error.Offset : 0;
        if (Offset > Text.size())
        {
            Offset = Text.size();
        }
        std::size_t Line = 1;
        std::size_t Column = 1;
        for (std::size_t Index = 0; Index < Offset; ++Index)
        {
            if (Text[Index] == '\n')
            {
                ++Line;
                Column = 1;
            }
            else
            {
                ++Column;
            }
        }
        std::string Reason = "the top-level value is not an object";
        if (Error.bTooDeep)
        {
            Reason = "arrays and objects nest deeper than " + std::to_string(MaxDepth) + " levels";
        }
        else if (bFailed)
        {
            Reason = rapidjson::GetParseError_En(Error.Code);
        }
        return "line " + std::to_string(Line) + ", column " + std::to_string(Column) + ": " + Reason;
    }
} // namespace OrvWebBridge
