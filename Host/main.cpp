// orv-host: runs the OrvessaWebBridge core without Unreal Engine, against an in-memory editor.
#include "Host/OrvHostCommands.h"

#include <CLI/CLI.hpp>

#include <cstdio>

using namespace OrvWebBridge;

namespace
{
    void AddCatalogOptions(CLI::App& Command, FOrvCatalogSourceOptions& Catalog)
    {
        auto* CatalogFile =
            Command
                .add_option("--catalog", Catalog.CatalogFile,
                            "Offline catalogue: a JSON file of product records (see Docs/CatalogFormat.md)")
                ->check(CLI::ExistingFile);
        auto* Api = Command.add_option("--api", Catalog.ApiUrl,
                                       "Base URL of the catalogue service, e.g. http://127.0.0.1:8080");
        CatalogFile->excludes(Api);
    }

    void AddSceneOption(CLI::App& Command, std::string& SceneFile)
    {
        Command
            .add_option("--scene", SceneFile,
                        "Level to load: a JSON scene file (see Docs/SceneFormat.md); "
                        "default: the built-in demo room")
            ->check(CLI::ExistingFile);
    }
} // namespace

int main(int Argc, char** Argv)
{
    CLI::App App{"orv-host: the OrvessaWebBridge editor plugin's core, run headless.\n"
                 "Serves the AI tool endpoint (MCP) on a level held in memory, prints the scene outliner,\n"
                 "exports the product schedule and previews catalogue product cards."};
    App.require_subcommand(1);
    App.set_version_flag("--version", "orv-host 0.6.0");

    FOrvServeOptions Serve;
    auto* ServeCommand = App.add_subcommand(
        "serve",
        "Serve the MCP endpoint on http://127.0.0.1:PORT/mcp and the catalogue panel on\n"
        "http://127.0.0.1:PANEL-PORT/ (each URL line is printed once listening), with a console on standard\n"
        "input: list, undo, redo, history, save [FILE], the outliner (tree, select, hide, show, export) and\n"
        "quit. Ctrl+C or SIGTERM stop it cleanly.");
    AddSceneOption(*ServeCommand, Serve.SceneFile);
    ServeCommand->add_option("--port", Serve.Port, "Port to listen on (0 lets the system choose)")
        ->capture_default_str()
        ->check(CLI::Range(0, 65535));
    AddCatalogOptions(*ServeCommand, Serve.Catalog);
    ServeCommand->add_flag("--verbose,-v", Serve.bVerbose, "Also print Verbose log lines");
    ServeCommand->add_flag("--no-console", Serve.bNoConsole,
                           "Do not read console commands from standard input");
    auto* PanelPort =
        ServeCommand
            ->add_option("--panel-port", Serve.PanelPort,
                         "Port of the catalogue panel at http://127.0.0.1:PORT/ (0 lets the system choose)")
            ->capture_default_str()
            ->check(CLI::Range(0, 65535));
    auto* Site =
        ServeCommand
            ->add_option("--site", Serve.SiteDir,
                         "Serve this folder (a web developer's static build, with index.html) in the "
                         "panel instead of the built-in demo site")
            ->check(CLI::ExistingDirectory);
    ServeCommand->add_flag("--no-panel", Serve.bNoPanel, "Do not serve the catalogue panel")
        ->excludes(PanelPort)
        ->excludes(Site);

    FOrvOutlinerOptions Outliner;
    auto* OutlinerCommand = App.add_subcommand(
        "outliner", "Print the level's catalogue products as the outliner panel shows them");
    AddSceneOption(*OutlinerCommand, Outliner.SceneFile);
    AddCatalogOptions(*OutlinerCommand, Outliner.Catalog);
    OutlinerCommand->add_flag("--verbose,-v", Outliner.bVerbose, "Also print Verbose log lines");

    FOrvScheduleOptions Schedule;
    auto* ScheduleCommand =
        App.add_subcommand("schedule", "Write the furniture Product Schedule CSV of the level");
    AddSceneOption(*ScheduleCommand, Schedule.SceneFile);
    AddCatalogOptions(*ScheduleCommand, Schedule.Catalog);
    ScheduleCommand->add_option("--project", Schedule.ProjectName,
                                "Project name in the header (default: the level's map name; empty: "
                                "\"Untitled Project\")");
    ScheduleCommand->add_option("--revision", Schedule.Revision, "Revision in the header (default: 01)");
    ScheduleCommand->add_option("-o,--output", Schedule.OutputFile,
                                "File to write, \".csv\" added when missing (default: "
                                "<Project>_ProductSchedule_R<Revision>.csv in the current directory)");
    ScheduleCommand->add_flag(
        "--force", Schedule.bForce,
        "Replace the output file if it exists (without it, an existing file is kept and "
        "the command fails)");
    ScheduleCommand->add_flag("--verbose,-v", Schedule.bVerbose, "Also print Verbose log lines");

    FOrvCardsOptions Cards;
    auto* CardsCommand = App.add_subcommand(
        "cards", "Print Markdown product cards for catalogue product records (a JSON array, or an object "
                 "with a \"products\" member; see Docs/Cards.md)");
    CardsCommand
        ->add_option("--full", Cards.FullCards,
                     "How many products get a full card; the rest are "
                     "listed compactly")
        ->capture_default_str();
    CardsCommand->add_option("FILE", Cards.InputFile, "Records file, or - for standard input")
        ->capture_default_str();

    CLI11_PARSE(App, Argc, Argv);

    if (ServeCommand->parsed())
    {
        return RunServeCommand(Serve);
    }
    if (OutlinerCommand->parsed())
    {
        return RunOutlinerCommand(Outliner);
    }
    if (ScheduleCommand->parsed())
    {
        return RunScheduleCommand(Schedule);
    }
    return RunCardsCommand(Cards);
}
