#pragma once

// Engine: Runtime/Json/Public/Serialization/JsonReader.h (module Json).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/TJsonReaderFactory

#include "CoreMinimal.h"

template <class CharType = TCHAR> class TJsonReader
{
};

template <class CharType = TCHAR> class TJsonReaderFactory
{
public:
    static TSharedRef<TJsonReader<CharType>> Create(const FString& JsonString);
};
