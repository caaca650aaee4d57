#pragma once

#include "Core/Ports/IOrvActorEditing.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvGameThread.h"
#include "Core/Ports/IOrvImageWrapper.h"
#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvTransactions.h"
#include "Core/Ports/IOrvViewport.h"

namespace OrvWebBridge
{
    /** @brief The editor as the AI tools see it: every engine call they make goes through one of these. */
    struct FOrvMcpPorts
    {
        IOrvEditorWorld& World;
        IOrvActorEditing& Editing;
        IOrvTransactions& Transactions;
        IOrvAssetRegistry& Assets;
        IOrvStaticMeshes& Meshes;
        IOrvViewport& Viewport;
        IOrvImageWrapperModule& Images;
        IOrvGameThread& GameThread;
        IOrvLog& Log;
    };
} // namespace OrvWebBridge
