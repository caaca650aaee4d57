#include "Host/OrvHostCommands.h"

#include "Core/Outliner/OrvOutlinerExportDialogModel.h"
#include "Host/Outliner/OrvOutlinerSession.h"

#include <cstdio>

namespace OrvWebBridge
{
    int RunScheduleCommand(const FOrvScheduleOptions& Options)
    {
        FOrvOutlinerSession Session(Options.bVerbose);
        std::string Error;
        if (!Session.Open(Options.SceneFile, Options.Catalog, Error) || !Session.ScanToCompletion(Error))
        {
            std::fprintf(stderr, "orv-host schedule: %s\n", Error.c_str());
            return 1;
        }

        // The panel's own export: its dialog, filled as the options say, then its save step, whose "dialog"
        // answers with the output file (or takes the proposed name in the current directory).
        FOrvHostFiles& Files = Session.Files();
        Files.bAllowOverwrite = Options.bForce;
        if (!Options.OutputFile.empty())
        {
            Files.DialogAnswer = Options.OutputFile;
        }
        bool bDialogOpened = false;
        FOrvOutlinerPanelModel& Panel = Session.Panel();
        Panel.SetOpenExportDialog(
            [&](const std::string& DefaultProjectName, FOrvOutlinerExportCallback OnExport)
            {
                bDialogOpened = true;
                FOrvOutlinerExportDialogModel Dialog(DefaultProjectName, std::move(OnExport));
                if (Options.ProjectName)
                {
                    Dialog.SetProjectName(*Options.ProjectName);
                }
                if (Options.Revision)
                {
                    Dialog.SetRevision(*Options.Revision);
                }
                Dialog.OnExportClicked();
            });
        Panel.OnExportCSVClicked();

        if (!bDialogOpened)
        {
            std::fprintf(stderr,
                         "orv-host schedule: the level has no catalogue products; nothing to export\n");
            return 1;
        }
        if (!Files.LastSavedPath)
        {
            if (Files.bLastFailureWasExistingFile)
            {
                std::fprintf(stderr, "orv-host schedule: %s; pass --force to overwrite it\n",
                             Files.LastError.c_str());
            }
            else
            {
                std::fprintf(stderr, "orv-host schedule: %s\n",
                             Files.LastError.empty() ? "the schedule was not written"
                                                     : Files.LastError.c_str());
            }
            return 1;
        }
        std::printf("%s\n", Files.LastSavedPath->c_str());
        return 0;
    }
} // namespace OrvWebBridge
