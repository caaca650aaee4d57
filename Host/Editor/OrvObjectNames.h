#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace OrvWebBridge
{
    /** @brief Object name rules of the engine's FName: "Base_N" numbering and case-insensitive identity. */
    struct FOrvObjectNames
    {
        /** The number an FName reads from a "_N" suffix (no leading zero, as FName parses it); nothing
         * otherwise.
         */
        static std::optional<std::int64_t> NumberSuffix(std::string_view Name);

        /** The name without its "_N" suffix; the whole name when it has none. */
        static std::string_view BaseName(std::string_view Name);

        /** ASCII lower case: the key under which names that the engine treats as equal meet. */
        static std::string Key(std::string_view Name);

        /** Splits "/Game/A/SM_X.SM_X" or "/Game/A/SM_X" into package name and asset name (empty when absent).
         */
        static void SplitObjectPath(std::string_view Path, std::string_view& OutPackage,
                                    std::string_view& OutAsset);

        /** What follows the last "/" of a package name: its short name. */
        static std::string_view ShortPackageName(std::string_view PackageName);

        /** What precedes the last "/" of a package name: its package path ("" when there is none). */
        static std::string_view PackagePath(std::string_view PackageName);
    };

    /**
     * @brief Hands out "<Base>_<N>" names like the engine's per-class counter: N is above every number seen
     * with that base in this session, so a number is never handed out twice, even after deletes.
     */
    class FOrvNameCounters
    {
    public:
        /** Takes note of a name that is now in use (numbers above the counter raise it). */
        void NoteUsed(std::string_view Name);

        /** The next name for Base, e.g. "StaticMeshActor_4"; counts from 0 like the engine. */
        std::string MakeUnique(std::string_view Base);

    private:
        std::unordered_map<std::string, std::int64_t> NextNumberByBase;
    };
} // namespace OrvWebBridge
