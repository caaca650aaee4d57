#pragma once

// Engine: Runtime/Core/Public/HAL/FileManager.h (module Core). Named here only as FFileHelper's default.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/IFileManager

class IFileManager
{
public:
    static IFileManager& Get();
};
