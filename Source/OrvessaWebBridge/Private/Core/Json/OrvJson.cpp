#include "Core/Json/OrvJson.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvRapidJson.h"

namespace OrvWebBridge
{
    namespace
    {
        // Forwards RapidJSON's events to the document and stops the parse at the first array or object
        // that would nest deeper than FOrvJson::MaxDepth.
        class FOrvJsonDepthLimit
        {
        public:
            explicit FOrvJsonDepthLimit(rapidjson::Document& InTarget) : Target(InTarget) {}

            bool Null() { return Target.Null(); }
            bool Bool(bool bValue) { return Target.Bool(bValue); }
            bool Int(int Value) { return Target.Int(Value); }
            bool Uint(unsigned Value) { return Target.Uint(Value); }
            bool Int64(std::int64_t Value) { return Target.Int64(Value); }
            bool Uint64(std::uint64_t Value) { return Target.Uint64(Value); }
            bool Double(double Value) { return Target.Double(Value); }
            bool RawNumber(const char* Text, rapidjson::SizeType Length, bool bCopy)
            {
                return Target.RawNumber(Text, Length, bCopy);
            }
            bool String(const char* Text, rapidjson::SizeType Length, bool bCopy)
            {
                return Target.String(Text, Length, bCopy);
            }
            bool Key(const char* Text, rapidjson::SizeType Length, bool bCopy)
            {
                return Target.Key(Text, Length, bCopy);
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

        private:
            bool Enter()
            {
                bTooDeep = ++Depth > FOrvJson::MaxDepth;
                return !bTooDeep;
            }

            rapidjson::Document& Target;
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
                FOrvJsonDepthLimit Handler(Target);
                Result = Reader.Parse<Flags | rapidjson::kParseIterativeFlag>(Stream, Handler);
                bTooDeep = Handler.bTooDeep;
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
        constexpr unsigned Precise = rapidjson::kParseFullPrecisionFlag;
        const bool bOk =
            Options.bValidateUtf8
                ? (Options.bFullPrecision ? OrvJsonParse<Validate | Precise>(Text, Out, Error)
                                          : OrvJsonParse<Validate>(Text, Out, Error))
                : (Options.bFullPrecision ? OrvJsonParse<Precise>(Text, Out, Error)
                                          : OrvJsonParse<rapidjson::kParseNoFlags>(Text, Out, Error));
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
