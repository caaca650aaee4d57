#include "Core/Outliner/OrvOutlinerWorldWalk.h"

#include <optional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    namespace
    {
        /** Mesh ref to product index (-1: no valid tag), open addressing over a flat array. */
        class FOrvWorldWalkMeshTable
        {
        public:
            FOrvWorldWalkMeshTable() : Slots(256) {}

            /** The slot for Mesh (non-null); Found tells whether it was already filled. */
            std::int32_t* FindOrAdd(std::uint64_t Mesh, bool& bFound)
            {
                if ((Used + 1) * 2 > Slots.size())
                {
                    Grow();
                }
                FSlot& Slot = Probe(Mesh);
                bFound = Slot.Mesh != 0;
                if (!bFound)
                {
                    Slot.Mesh = Mesh;
                    ++Used;
                }
                return &Slot.ProductIndex;
            }

        private:
            struct FSlot
            {
                std::uint64_t Mesh = 0;
                std::int32_t ProductIndex = -1;
            };

            FSlot& Probe(std::uint64_t Mesh)
            {
                const std::size_t Mask = Slots.size() - 1;
                std::size_t Index = static_cast<std::size_t>((Mesh * 0x9E3779B97F4A7C15ull) >> 17) & Mask;
                while (Slots[Index].Mesh != 0 && Slots[Index].Mesh != Mesh)
                {
                    Index = (Index + 1) & Mask;
                }
                return Slots[Index];
            }

            void Grow()
            {
                std::vector<FSlot> Old(Slots.size() * 2);
                Old.swap(Slots);
                for (const FSlot& Slot : Old)
                {
                    if (Slot.Mesh != 0)
                    {
                        Probe(Slot.Mesh) = Slot;
                    }
                }
            }

            std::vector<FSlot> Slots; ///< size is a power of two, at most half full
            std::size_t Used = 0;
        };
    } // namespace

    FOrvOutlinerWorldWalk FOrvOutlinerWorldWalk::Run(const IOrvEditorWorld& World,
                                                     const IOrvStaticMeshes& Meshes)
    {
        FOrvOutlinerWorldWalk Walk;
        const std::vector<FOrvActorRef> Actors = World.GetActors();

        // Pass one: each actor's product index, and how many actors each product has.
        FOrvSceneProductMap& Products = Walk.Products;
        std::vector<std::int32_t> ActorCounts;
        std::vector<std::int32_t> ProductOfActor(Actors.size(), -1);
        FOrvWorldWalkMeshTable ProductOfMesh;

        const auto ResolveMesh = [&](FOrvMeshRef Mesh) -> std::int32_t
        {
            std::optional<FOrvProductTag> Tag = Meshes.GetProductTag(Mesh);
            if (!Tag || !Tag->bIsValid)
            {
                return -1;
            }
            const std::size_t Index = Products.FindIndex(Tag->ProductID);
            if (Index == Products.Num())
            {
                // The mesh of the first actor met stands for the product.
                auto Product = std::make_shared<FOrvSceneProduct>();
                Product->ProductID = std::move(Tag->ProductID);
                Product->Mesh = Mesh;
                Products.Add(std::move(Product));
                ActorCounts.push_back(0);
            }
            return static_cast<std::int32_t>(Index);
        };

        for (std::size_t ActorIndex = 0; ActorIndex < Actors.size(); ++ActorIndex)
        {
            for (const FOrvMeshRef Mesh : World.GetStaticMeshComponents(Actors[ActorIndex]))
            {
                if (!Mesh)
                {
                    continue;
                }
                bool bKnown = false;
                std::int32_t* ProductIndex = ProductOfMesh.FindOrAdd(Mesh.Value, bKnown);
                if (!bKnown)
                {
                    *ProductIndex = ResolveMesh(Mesh);
                }
                if (*ProductIndex >= 0)
                {
                    ProductOfActor[ActorIndex] = *ProductIndex;
                    ++ActorCounts[static_cast<std::size_t>(*ProductIndex)];
                    ++Walk.TotalActorCount;
                    break;
                }
            }
        }

        // Pass two: each product's actors written straight into storage sized by pass one, through a
        // small array of write positions that stays in cache however many actors there are.
        std::vector<FOrvActorRef*> WritePosition(Products.Num());
        for (std::size_t Index = 0; Index < Products.Num(); ++Index)
        {
            std::vector<FOrvActorRef>& ProductActors = Products[Index]->Actors;
            ProductActors.resize(static_cast<std::size_t>(ActorCounts[Index]));
            WritePosition[Index] = ProductActors.data();
        }
        for (std::size_t ActorIndex = 0; ActorIndex < Actors.size(); ++ActorIndex)
        {
            if (ProductOfActor[ActorIndex] >= 0)
            {
                *WritePosition[static_cast<std::size_t>(ProductOfActor[ActorIndex])]++ = Actors[ActorIndex];
            }
        }
        return Walk;
    }
} // namespace OrvWebBridge
