#pragma once

// Engine: Runtime/Core/Public/Internationalization/Internationalization.h (module Core): the localisation
// macros. LOCTEXT takes its namespace from LOCTEXT_NAMESPACE, which must be defined where it is used;
// every argument must be a string literal, because the gatherer reads the source text.
// Docs: https://dev.epicgames.com/documentation/en-us/unreal-engine/localizing-content-in-unreal-engine
// (the macros' own API pages do not exist; the engine header is the reference).

#include "Internationalization/Text.h"

namespace OrvSurface
{
    FText LocText(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* SourceText);
}

// TEXT() accepts string literals only, so a non-literal argument or a missing LOCTEXT_NAMESPACE fails.
#define LOCTEXT(InKey, InTextLiteral)                                                                        \
    ::OrvSurface::LocText(TEXT(LOCTEXT_NAMESPACE), TEXT(InKey), TEXT(InTextLiteral))
#define NSLOCTEXT(InNamespace, InKey, InTextLiteral)                                                         \
    ::OrvSurface::LocText(TEXT(InNamespace), TEXT(InKey), TEXT(InTextLiteral))
