#pragma once

// Engine: Runtime/Slate/Public/Framework/SlateDelegates.h (module Slate): the delegates widgets' events take.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FOnClicked
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/FOnTextChanged

#include "CoreMinimal.h"
#include "Input/Reply.h"

DECLARE_DELEGATE_RetVal(FReply, FOnClicked) DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&)
