#include "Unreal/OrvUnrealTransactions.h"

#include "Unreal/OrvUnrealConversions.h"

#include "ScopedTransaction.h"

namespace OrvWebBridge
{
    FOrvUnrealTransactions::FOrvUnrealTransactions() = default;

    FOrvUnrealTransactions::~FOrvUnrealTransactions()
    {
        while (Open.Num() > 0)
        {
            EndTransaction();
        }
    }

    void FOrvUnrealTransactions::BeginTransaction(std::string_view Description)
    {
        check(IsInGameThread());
        Open.Push(
            MakeUnique<FScopedTransaction>(FText::FromString(FOrvUnrealConversions::ToFString(Description))));
    }

    void FOrvUnrealTransactions::EndTransaction()
    {
        check(IsInGameThread());
        if (Open.Num() > 0)
        {
            // Destroying the scope is what ends the transaction.
            Open.RemoveAt(Open.Num() - 1);
        }
    }
} // namespace OrvWebBridge
