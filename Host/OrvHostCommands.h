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
        bool bVerbose = false;           ///< also print Verbose log lines
        bool bNoConsole = false;         ///< do not read commands from standard input
        std::uint32_t PanelPort = 30012; ///< the catalogue panel's port (0: the system chooses)
        bool bNoPanel = false;           ///< do not serve the catalogue panel
        std::string SiteDir; ///< --site DIR: serve this static build in the panel instead of the demo
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
