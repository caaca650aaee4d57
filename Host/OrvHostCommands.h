#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    /** @brief Where catalogue data comes from: an offline file, the HTTP service or the demo catalogue. */
    struct FOrvCatalogSourceOptions
    {
        std::string CatalogFile; ///< --catalog FILE
        std::string ApiUrl;      ///< --api URL
    };

    /** @brief orv-host serve */
    struct FOrvServeOptions
    {
        std::string SceneFile; ///< empty: the built-in demo scene
        std::uint32_t Port = 30011;
        FOrvCatalogSourceOptions Catalog;
        bool bVerbose = false;   ///< also print Verbose log lines
        bool bNoConsole = false; ///< do not read commands from standard input
    };

    /** @brief orv-host outliner */
    struct FOrvOutlinerOptions
    {
        std::string SceneFile;
        FOrvCatalogSourceOptions Catalog;
        bool bVerbose = false;
    };

    /** @brief orv-host schedule */
    struct FOrvScheduleOptions
    {
        std::string SceneFile;
        FOrvCatalogSourceOptions Catalog;
        std::optional<std::string> ProjectName;
        std::optional<std::string> Revision;
        std::string OutputFile; ///< empty: the panel's default file name in the current directory
        bool bForce = false;
        bool bVerbose = false;
    };

    /** @brief orv-host cards */
    struct FOrvCardsOptions
    {
        int FullCards = 3;
        std::string InputFile = "-"; ///< "-" reads standard input
    };

    /** Each returns the process exit code. */
    int RunServeCommand(const FOrvServeOptions& Options);
    int RunOutlinerCommand(const FOrvOutlinerOptions& Options);
    int RunScheduleCommand(const FOrvScheduleOptions& Options);
    int RunCardsCommand(const FOrvCardsOptions& Options);
} // namespace OrvWebBridge
