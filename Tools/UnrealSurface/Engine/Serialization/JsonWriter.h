#pragma once

// Engine: Runtime/Json/Public/Serialization/JsonWriter.h (module Json). The writer appends to the string it
// is given.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/TJsonWriterFactory

#include "CoreMinimal.h"
#include "Policies/PrettyJsonPrintPolicy.h"

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>> class TJsonWriter
{
};

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriterFactory
{
public:
    static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* const InStream,
                                                                 int32 InitialIndentLevel = 0);
};
