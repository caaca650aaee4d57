#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvGoldenFile.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvNullEditorPorts.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

// The published catalogue as AI clients read it, a changed byte a changed product: the nine tools in
// order, each description word for word with its raw dashes and the capture view's escaped paragraph
// break, the schemas' key order, and the engine writer's tabs and CRLF line ends.
TEST(FOrvMcpToolCatalogTest, ToolsListAnswerMatchesThePublishedCatalogueByteForByte)
{
    FOrvNullEditorPorts Editor;
    FOrvMcpHandler Handler{Editor.Ports()};
    OrvExpectMatchesGolden(
        OrvSendMcpRequest(Handler, Editor.GameThread, R"({"jsonrpc":"2.0","id":1,"method":"tools/list"})"),
        "Tests/Golden/Mcp/ToolsList.json");
}
