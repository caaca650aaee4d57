#pragma once

// Engine: Runtime/Core/Public/Misc/AssertionMacros.h (module Core).
// Docs: none for the macros themselves; the engine header is the reference.
// The condition must convert to bool; it is type-checked here and never evaluated.

#define check(Expr) ((void)sizeof(!(Expr)))
#define checkf(Expr, Format, ...) ((void)sizeof(!(Expr)))
#define verify(Expr) ((void)(Expr))
#define ensure(Expr) (!!(Expr))
#define ensureMsgf(Expr, Format, ...) (!!(Expr))
