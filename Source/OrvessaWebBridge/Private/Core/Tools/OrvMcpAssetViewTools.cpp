// Placeholder bodies until the asset and view tools land: each completes with no result.
#include "Core/Mcp/OrvMcpHandler.h"

void FOrvMcpHandler::ToolUeListAvailableAssets(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeCaptureView(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeGetAssetBounds(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUePlacementGuide(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
