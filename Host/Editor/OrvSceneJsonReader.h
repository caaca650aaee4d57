#pragma once

#include "Core/Common/OrvTypes.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OrvWebBridge
{
    class FOrvMemoryEditor;

    /**
     * @brief Strict reading of a scene file's JSON values: every failure records one message naming the
     * file, the place ("actors[2].location") and the problem. Absent optional keys leave outputs untouched.
     */
    class FOrvSceneJsonReader
    {
    public:
        explicit FOrvSceneJsonReader(const std::string& InSourceName) : SourceName(InSourceName) {}

        /** Records "file: place: problem" (or "file: problem" at the top) and returns false. */
        bool Fail(const std::string& Place, const std::string& Problem);
        const std::string& GetError() const { return Error; }

        static std::string Quoted(std::string_view Text) { return "\"" + std::string(Text) + "\""; }
        static std::string Join(const std::string& Place, std::string_view Key)
        {
            return Place.empty() ? std::string(Key) : Place + "." + std::string(Key);
        }
        static std::string At(const std::string& Place, std::size_t Index)
        {
            return Place + "[" + std::to_string(Index) + "]";
        }

        /** Objects may hold only the known keys, each once: a typo must not silently drop a value. */
        bool CheckObject(const rapidjson::Value& Value, const std::string& Place,
                         std::initializer_list<std::string_view> Allowed);

        bool ReadString(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                        std::string& Out);
        bool ReadBool(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                      bool& bOut);
        bool ReadNumber(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                        double& Out);
        bool ReadVector(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                        FOrvVector& Out);
        bool ReadRotator(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                         FOrvRotator& Out);

        /** An object of text values under names that ignore case ({"Orv_FinishID": "F-01"}), in file order;
         *  a name repeated in another case is an error. */
        bool ReadNamedTexts(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                            std::vector<std::pair<std::string, std::string>>& Out);

    private:
        /** An optional member: absent leaves Out as it is; present must pass IsType, else Expected is
         * reported.
         */
        template <typename TValue, typename TIsType, typename TGet>
        bool ReadScalar(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                        TValue& Out, TIsType IsType, TGet Get, const char* Expected);

        bool ReadTriple(const rapidjson::Value& Object, std::string_view Key, const std::string& Place,
                        double& OutA, double& OutB, double& OutC);

        const std::string& SourceName;
        std::string Error;
    };

    /** @brief Reads the "viewport" member of a scene file into the editor (none, default, or as written). */
    struct FOrvSceneViewportReader
    {
        static bool Read(FOrvSceneJsonReader& Json, const rapidjson::Value& Root, FOrvMemoryEditor& Editor);
    };
} // namespace OrvWebBridge
