#include "Core/Json/OrvJson.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstring>

namespace OrvWebBridge
{
    bool FOrvJson::ParseObject(std::string_view Text, rapidjson::Document& Out)
    {
        Out.Parse(Text.data(), Text.size());
        return !Out.HasParseError() && Out.IsObject();
    }

    const rapidjson::Value* FOrvJson::FindField(const rapidjson::Value& Object, std::string_view Key)
    {
        if (!Object.IsObject())
        {
            return nullptr;
        }
        for (auto It = Object.MemberBegin(); It != Object.MemberEnd(); ++It)
        {
            if (It->name.GetStringLength() == Key.size() &&
                std::memcmp(It->name.GetString(), Key.data(), Key.size()) == 0)
            {
                return &It->value;
            }
        }
        return nullptr;
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

    std::string FOrvJson::DescribeParseError(std::string_view Text, const rapidjson::Document& Failed)
    {
        std::size_t Offset = Failed.HasParseError() ? Failed.GetErrorOffset() : 0;
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
        const char* Reason = Failed.HasParseError() ? rapidjson::GetParseError_En(Failed.GetParseError())
                                                    : "the top-level value is not an object";
        return "line " + std::to_string(Line) + ", column " + std::to_string(Column) + ": " + Reason;
    }
} // namespace OrvWebBridge
