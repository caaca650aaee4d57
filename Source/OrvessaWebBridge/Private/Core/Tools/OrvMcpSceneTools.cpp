// Placeholder bodies until the scene tools land: each completes with no result.
#include "Core/Mcp/OrvMcpHandler.h"

void FOrvMcpHandler::ToolUeListScene(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeGetCamera(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeSpawnProduct(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeMoveActor(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
void FOrvMcpHandler::ToolUeDeleteActor(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete) { OnComplete({}); }
