#pragma once

#include "Core/Mcp/OrvMcpHandler.h"
#include "Core/Ports/IOrvLog.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvTurboJpegModule.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <cstdlib>

namespace OrvWebBridge
{
    /** @brief A log that prints nothing, so the fuzzer's own output stays readable. */
    class FOrvFuzzLog : public IOrvLog
    {
    public:
        void Log(EOrvLogCategory, EOrvLogVerbosity, std::string_view) override {}
    };

    /**
     * @brief The host's in-memory editor on the demo room, with the real JPEG encoder behind the handler. The
     * viewport is small so that captures stay cheap; every input gets a fresh level, so runs do not depend
     * on each other.
     */
    struct FOrvFuzzEditor
    {
        FOrvFuzzEditor()
        {
            if (!FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor).bOk)
            {
                std::abort();
            }
            FOrvMemoryViewportDesc Viewport = Editor.GetViewport().value_or(FOrvMemoryViewportDesc{});
            Viewport.Size = {64, 40};
            Editor.SetViewport(Viewport);
        }

        FOrvMcpPorts Ports() { return Editor.McpPorts(Jpeg(), GameThread, Log); }

        /** One encoder for the whole run: it keeps no state between pictures but its buffer. */
        static FOrvTurboJpegModule& Jpeg()
        {
            static FOrvTurboJpegModule Module;
            return Module;
        }

        FOrvMemoryEditor Editor;
        FOrvManualGameThread GameThread;
        FOrvFuzzLog Log;
    };
} // namespace OrvWebBridge
