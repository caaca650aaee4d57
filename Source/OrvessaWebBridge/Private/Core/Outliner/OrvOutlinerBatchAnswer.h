#pragma once

#include "Core/Outliner/OrvSceneProduct.h"

#include "Core/Json/OrvRapidJson.h"

#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What the catalogue's "/orvvault/products/batch" answer amounts to. */
    enum class EOrvBatchAnswerOutcome
    {
        RequestFailed, ///< no answer object: every requested id gets a placeholder
        StatusFalse,   ///< the service declined: nothing is learnt
        Answered,      ///< records and missing ids below
    };

    /**
     * @brief The batch answer read as the engine's JSON object reads it: field names without case, numbers
     * and booleans accepted where text is expected, "null" texts of the optional fields taken as empty.
     */
    struct FOrvOutlinerBatchAnswer
    {
        EOrvBatchAnswerOutcome Outcome = EOrvBatchAnswerOutcome::RequestFailed;
        std::vector<FOrvProductInfo> Products; ///< in answer order
        std::vector<std::string> Missing;      ///< ids the service does not know, in answer order

        static FOrvOutlinerBatchAnswer Read(bool bSuccess, const rapidjson::Value* Answer);
    };
} // namespace OrvWebBridge
