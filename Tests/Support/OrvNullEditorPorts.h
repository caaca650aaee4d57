#pragma once

#include "Core/Mcp/OrvMcpPorts.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Tests/Support/OrvFakeCapturePorts.h"
#include "Tests/Support/OrvManualGameThread.h"
#include "Tests/Support/OrvRecordingLog.h"

namespace OrvWebBridge
{
    /**
     * @brief An editor with nothing open: no world, no assets, no viewport, no JPEG encoder. For tests of
     * the MCP plumbing that must not depend on what the tools find; the game thread is pumped by hand.
     */
    class FOrvNullEditorPorts
    {
    public:
        FOrvNullEditorPorts()
        {
            Editor.SetEditorWorldAvailable(false);
            Editor.SetViewport(std::nullopt);
            Images.bCreatesWrapper = false;
        }
        FOrvNullEditorPorts(const FOrvNullEditorPorts&) = delete;
        FOrvNullEditorPorts& operator=(const FOrvNullEditorPorts&) = delete;

        FOrvMcpPorts Ports() { return Editor.McpPorts(Images, GameThread, Log); }

        FOrvManualGameThread GameThread;
        FOrvRecordingLog Log;

    private:
        FOrvMemoryEditor Editor;
        FOrvFakeImageWrapperModule Images;
    };
} // namespace OrvWebBridge
