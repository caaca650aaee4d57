#include "Host/Editor/OrvSceneJsonReader.h"

#include "Core/Json/OrvJson.h"

#include <algorithm>
#include <unordered_set>

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

bool FOrvSceneJsonReader::ReadString(const rapidjson::Value& Object, std::string_view Key,
                                     const std::string& Place, std::string& Out)
{
    const rapidjson::Value* Field = FOrvJson::FindField(Object, Key);
    if (!Field)
    {
        return true;
    }
    if (!Field->IsString())
    {
        return Fail(Join(Place, Key), "expected a string");
    }
    Out.assign(Field->GetString(), Field->GetStringLength());
    return true;
}

bool FOrvSceneJsonReader::ReadBool(const rapidjson::Value& Object, std::string_view Key,
                                   const std::string& Place, bool& bOut)
{
    const rapidjson::Value* Field = FOrvJson::FindField(Object, Key);
    if (!Field)
    {
        return true;
    }
    if (!Field->IsBool())
    {
        return Fail(Join(Place, Key), "expected true or false");
    }
    bOut = Field->GetBool();
    return true;
}

bool FOrvSceneJsonReader::ReadNumber(const rapidjson::Value& Object, std::string_view Key,
                                     const std::string& Place, double& Out)
{
    const rapidjson::Value* Field = FOrvJson::FindField(Object, Key);
    if (!Field)
    {
        return true;
    }
    if (!Field->IsNumber())
    {
        return Fail(Join(Place, Key), "expected a number");
    }
    Out = Field->GetDouble();
    return true;
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
