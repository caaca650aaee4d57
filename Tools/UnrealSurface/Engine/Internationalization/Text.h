#pragma once

// Engine: Runtime/Core/Public/Internationalization/Text.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FText

#include "Containers/UnrealString.h"

class FText
{
public:
    FText();

    /** Text that is not localised (a culture-invariant copy of String). */
    static FText FromString(const FString& String);
    static FText FromString(FString&& String);
};
