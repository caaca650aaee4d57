#include "Host/OrvHostCommands.h"

#include "Host/Outliner/OrvOutlinerSession.h"
#include "Host/Outliner/OrvOutlinerTextView.h"

#include <cstdio>

namespace OrvWebBridge
{
    int RunOutlinerCommand(const FOrvOutlinerOptions& Options)
    {
        FOrvOutlinerSession Session(Options.bVerbose);
        std::string Error;
        if (!Session.Open(Options.SceneFile, Options.Catalog, Error) || !Session.ScanToCompletion(Error))
        {
            std::fprintf(stderr, "orv-host outliner: %s\n", Error.c_str());
            return 1;
        }
        const std::string Text = FOrvOutlinerTextView::Render(Session.Panel());
        std::fwrite(Text.data(), 1, Text.size(), stdout);
        return 0;
    }
} // namespace OrvWebBridge
