#pragma once

// Engine: Runtime/Core/Public/HAL/PlatformProcess.h (module Core): FPlatformProcess is the platform's class
// (FWindowsPlatformProcess on Windows), which inherits these from FGenericPlatformProcess
// (GenericPlatform/GenericPlatformProcess.h). LaunchURL returns at once: the system's default browser opens
// the URL, which must already be escaped.
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FGenericPlatformProcess/LaunchURL

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

struct FGenericPlatformProcess
{
    static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);
};

typedef FGenericPlatformProcess FPlatformProcess;
