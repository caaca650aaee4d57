#pragma once

// Engine: Developer/DesktopPlatform/Public/IDesktopPlatform.h (module DesktopPlatform).
// Docs:
//   https://dev.epicgames.com/documentation/unreal-engine/API/Developer/DesktopPlatform/IDesktopPlatform/SaveFileDialog?application_version=5.5

#include "CoreMinimal.h"

namespace EFileDialogFlags
{
    enum Type
    {
        None = 0x00,
        Multiple = 0x01,
    };
} // namespace EFileDialogFlags

class IDesktopPlatform
{
public:
    virtual ~IDesktopPlatform();

    /** FileTypes: "Description|*.ext" pairs joined by '|'. False when the user cancels. */
    virtual bool SaveFileDialog(const void* ParentWindowHandle, const FString& DialogTitle,
                                const FString& DefaultPath, const FString& DefaultFile,
                                const FString& FileTypes, uint32 Flags, TArray<FString>& OutFilenames) = 0;
};
