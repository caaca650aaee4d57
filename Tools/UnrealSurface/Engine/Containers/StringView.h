#pragma once

// Engine: Runtime/Core/Public/Containers/StringView.h (module Core): a pointer and a length, made from an
// FString or a terminated string without copying.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TStringView

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

template <typename CharType> class TStringView
{
public:
    TStringView();
    TStringView(const CharType* Str);
    TStringView(const FString& Str) requires(std::is_same_v<CharType, TCHAR>);
};

using FStringView = TStringView<TCHAR>;
