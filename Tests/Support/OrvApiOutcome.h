#pragma once

#include "Core/Ports/IOrvCatalogApi.h"

#include <memory>

namespace OrvWebBridge
{
    /** @brief Every call of one catalogue API completion, so "exactly once" can be checked. */
    struct FOrvApiOutcome
    {
        int Calls = 0;
        bool bSuccess = false;
        std::shared_ptr<const rapidjson::Document> Answer;

        FOrvApiCallback Callback()
        {
            return [this](bool bInSuccess, std::shared_ptr<const rapidjson::Document> InAnswer)
            {
                ++Calls;
                bSuccess = bInSuccess;
                Answer = std::move(InAnswer);
            };
        }
    };
} // namespace OrvWebBridge
