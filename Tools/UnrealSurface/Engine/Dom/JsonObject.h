#pragma once

// Engine: Runtime/Json/Public/Dom/JsonObject.h (module Json). Held by shared pointer; only handed on here.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/FJsonObject

class FJsonObject
{
public:
    FJsonObject();
};
