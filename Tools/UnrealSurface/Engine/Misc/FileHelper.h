#pragma once

// Engine: Runtime/Core/Public/Misc/FileHelper.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FFileHelper

#include "Containers/StringView.h"
#include "HAL/FileManager.h"
#include "HAL/Platform.h"

struct FFileHelper
{
    enum class EEncodingOptions
    {
        AutoDetect,
        ForceAnsi,
        ForceUnicode,
        ForceUTF8,
        ForceUTF8WithoutBOM,
    };

    /** Writes String to Filename in the given encoding; false when the file cannot be written. */
    static bool SaveStringToFile(FStringView String, const TCHAR* Filename,
                                 EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect,
                                 IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
};
