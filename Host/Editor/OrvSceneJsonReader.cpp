#include "Host/Editor/OrvSceneJsonReader.h"

#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"

#include <algorithm>
#include <unordered_set>

namespace OrvWebBridge
{
    bool FOrvSceneJsonReader::Fail(const std::string& Place, const std::string& Problem)
    {
        Error = SourceName + ": " + (Place.empty() ? "" : Place + ": ") + Problem;
        return false;
    }

    bool FOrvSceneJsonReader::CheckObject(const rapidjson::Value& Value, const std::string& Place,
                                          std::initializer_list<std::string_view> Allowed)
    {
        if (!Value.IsObject())
        {
            return Fail(Place, "expected an object");
        }
        std::unordered_set<std::string_view> Seen;
        for (auto It = Value.MemberBegin(); It != Value.MemberEnd(); ++It)
        {
            const std::string_view Key = FOrvJson::View(It->name);
            if (std::find(Allowed.begin(), Allowed.end(), Key) == Allowed.end())
            {
                return Fail(Place, "unknown key " + Quoted(Key));
            }
            if (!Seen.insert(Key).second)
            {
                return Fail(Place, "key " + Quoted(Key) + " appears twice");
            }
        }
        return true;
    }

    template <typename TValue, typename TIsType, typename TGet>
    bool FOrvSceneJsonReader::ReadScalar(const rapidjson::Value& Object, std::string_view Key,
                                         const std::string& Place, TValue& Out, TIsType IsType, TGet Get,
                                         const char* Expected)
    {
        const rapidjson::Value* Field = FOrvJson::FindField(Object, Key);
        if (!Field)
        {
            return true;
        }
        if (!IsType(*Field))
        {
            return Fail(Join(Place, Key), Expected);
        }
        Out = Get(*Field);
        return true;
    }

    bool FOrvSceneJsonReader::ReadString(const rapidjson::Value& Object, std::string_view Key,
                                         const std::string& Place, std::string& Out)
    {
        return ReadScalar(
            Object, Key, Place, Out, [](const rapidjson::Value& Field) { return Field.IsString(); },
            [](const rapidjson::Value& Field) { return std::string(FOrvJson::View(Field)); },
            "expected a string");
    }

    bool FOrvSceneJsonReader::ReadBool(const rapidjson::Value& Object, std::string_view Key,
                                       const std::string& Place, bool& bOut)
    {
        return ReadScalar(
            Object, Key, Place, bOut, [](const rapidjson::Value& Field) { return Field.IsBool(); },
            [](const rapidjson::Value& Field) { return Field.GetBool(); }, "expected true or false");
    }

    bool FOrvSceneJsonReader::ReadNumber(const rapidjson::Value& Object, std::string_view Key,
                                         const std::string& Place, double& Out)
    {
        return ReadScalar(
            Object, Key, Place, Out, [](const rapidjson::Value& Field) { return Field.IsNumber(); },
            [](const rapidjson::Value& Field) { return Field.GetDouble(); }, "expected a number");
    }

    bool FOrvSceneJsonReader::ReadTriple(const rapidjson::Value& Object, std::string_view Key,
                                         const std::string& Place, double& OutA, double& OutB, double& OutC)
    {
        const rapidjson::Value* Field = FOrvJson::FindField(Object, Key);
        if (!Field)
        {
            return true;
        }
        if (!Field->IsArray() || Field->Size() != 3 || !(*Field)[0].IsNumber() || !(*Field)[1].IsNumber() ||
            !(*Field)[2].IsNumber())
        {
            return Fail(Join(Place, Key), "expected an array of 3 numbers");
        }
        OutA = (*Field)[0].GetDouble();
        OutB = (*Field)[1].GetDouble();
        OutC = (*Field)[2].GetDouble();
        return true;
    }

    bool FOrvSceneJsonReader::ReadVector(const rapidjson::Value& Object, std::string_view Key,
                                         const std::string& Place, FOrvVector& Out)
    {
        return ReadTriple(Object, Key, Place, Out.X, Out.Y, Out.Z);
    }

    bool FOrvSceneJsonReader::ReadRotator(const rapidjson::Value& Object, std::string_view Key,
                                          const std::string& Place, FOrvRotator& Out)
    {
        return ReadTriple(Object, Key, Place, Out.Pitch, Out.Yaw, Out.Roll);
    }

    bool FOrvSceneJsonReader::ReadNamedTexts(const rapidjson::Value& Object, std::string_view Key,
                                             const std::string& Place,
                                             std::vector<std::pair<std::string, std::string>>& Out)
    {
        const rapidjson::Value* Texts = FOrvJson::FindField(Object, Key);
        if (!Texts)
        {
            return true;
        }
        const std::string TextsPlace = Join(Place, Key);
        if (!Texts->IsObject())
        {
            return Fail(TextsPlace, "expected an object of text values, e.g. {\"Orv_FinishID\": \"F-01\"}");
        }
        for (auto Member = Texts->MemberBegin(); Member != Texts->MemberEnd(); ++Member)
        {
            const std::string Name(Member->name.GetString(), Member->name.GetStringLength());
            if (Name.empty())
            {
                return Fail(TextsPlace, "names must not be empty");
            }
            if (!Member->value.IsString())
            {
                return Fail(Join(TextsPlace, Name), "expected a string");
            }
            for (const auto& Listed : Out)
            {
                if (FOrvStrings::EqualsIgnoreCase(Listed.first, Name))
                {
                    return Fail(Join(TextsPlace, Name),
                                "repeats " + Quoted(Listed.first) + " (names ignore case)");
                }
            }
            Out.emplace_back(Name, std::string(Member->value.GetString(), Member->value.GetStringLength()));
        }
        return true;
    }
} // namespace OrvWebBridge
