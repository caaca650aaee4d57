#pragma once

// Engine: Runtime/Core/Public/Containers/StringConv.h (module Core). FUTF8ToTCHAR and FTCHARToUTF8 are
// TStringConversion instances: a converted copy of Source, read through Get() and Length().
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/TStringConversion

#include "HAL/Platform.h"

template <typename FromType, typename ToType> class TStringConversion
{
public:
    /** Converts exactly SourceLen code units; the source needs no terminator. */
    template <typename SrcBufferType>
    requires(sizeof(SrcBufferType) == sizeof(FromType))
        TStringConversion(const SrcBufferType* Source, int32 SourceLen);

    const ToType* Get() const;
    int32 Length() const;
};

using FUTF8ToTCHAR = TStringConversion<UTF8CHAR, TCHAR>;
using FTCHARToUTF8 = TStringConversion<TCHAR, UTF8CHAR>;
