// The offline catalogue of the demo room (Docs/CatalogFormat.md): one record per product it holds.
// The cushion has no macro category, so the outliner shows its category at the root; the coffee table's
// name holds a comma and double quotes, which the schedule CSV has to escape. The finishes are what the
// catalogue panel's finish pages show.
#include "Host/Editor/OrvDemoScene.h"

namespace OrvWebBridge
{
    std::string_view FOrvDemoScene::CatalogJson()
    {
        static constexpr std::string_view Text = R"json({
  "products": [
    {
      "id": "FNV-TB-2040",
      "name": "Tavola Lunga",
      "brand": "Forma Nova",
      "category": "Tables",
      "category_t2": "Furniture",
      "collection": "Arco",
      "designer": "Giulia Ferrante",
      "dimensions": "W 220 x D 100 x H 75 cm",
      "weight": "48 kg",
      "description": "Solid oak dining table with tapered legs and a softly bevelled top; seats eight.",
      "website": "https://www.formanova.example/arco/tavola-lunga"
    },
    {
      "id": "FNV-CH-1102",
      "name": "Sedia Arco",
      "brand": "Forma Nova",
      "category": "Chairs",
      "category_t2": "Furniture",
      "collection": "Arco",
      "designer": "Giulia Ferrante",
      "dimensions": "W 46 x D 52 x H 82 cm",
      "weight": "5.5 kg",
      "description": "Dining chair with a curved oak backrest and a woven paper-cord seat.",
      "website": "https://www.formanova.example/arco/sedia-arco"
    },
    {
      "id": "FNV-ST-1150",
      "name": "Sgabello Tondo",
      "brand": "Forma Nova",
      "category": "Stools",
      "category_t2": "Furniture",
      "collection": "Arco",
      "designer": "Giulia Ferrante",
      "dimensions": "Ø 36 x H 65 cm",
      "weight": "4 kg",
      "description": "Counter stool with a turned oak seat and a brass footrest ring.",
      "website": "https://www.formanova.example/arco/sgabello-tondo"
    },
    {
      "id": "FNV-ST-0999",
      "name": "Comodino Archivio",
      "brand": "Forma Nova",
      "category": "Side Tables",
      "category_t2": "Furniture",
      "collection": "Archivio",
      "designer": "Giulia Ferrante",
      "dimensions": "W 50 x D 50 x H 55 cm",
      "weight": "9 kg",
      "description": "Discontinued side table, kept in the catalogue for existing projects.",
      "website": "https://www.formanova.example/archivio/comodino"
    },
    {
      "id": "ATB-SF-3300",
      "name": "Divano Onda 3 posti",
      "brand": "Atelier Brera",
      "category": "Sofas",
      "category_t2": "Furniture",
      "collection": "Onda",
      "designer": "Marco Sala",
      "dimensions": "W 220 x D 96 x H 78 cm",
      "weight": "72 kg",
      "description": "Three-seater sofa with a wave-shaped backrest, feather-wrapped cushions and removable bouclé cover.",
      "website": "https://www.atelierbrera.example/onda/divano-3-posti"
    },
    {
      "id": "ATB-AC-3120",
      "name": "Poltrona Nido",
      "brand": "Atelier Brera",
      "category": "Armchairs",
      "category_t2": "Furniture",
      "collection": "Nido",
      "designer": "Elena Rossi",
      "dimensions": "W 84 x D 80 x H 80 cm",
      "weight": "21 kg",
      "description": "Enveloping lounge armchair on a slim walnut base.",
      "website": "https://www.atelierbrera.example/nido/poltrona"
    },
    {
      "id": "PVV-CT-0510",
      "name": "Tavolino \"Sasso\", basso",
      "brand": "Pietra Viva",
      "category": "Coffee Tables",
      "category_t2": "Furniture",
      "collection": "Sasso",
      "designer": "Luca Bianchi",
      "dimensions": "W 120 x D 70 x H 38 cm",
      "weight": "64 kg",
      "description": "Low coffee table carved from a single block of Carrara marble, honed finish.",
      "website": "https://www.pietraviva.example/sasso/tavolino-basso"
    },
    {
      "id": "LNS-SB-0450",
      "name": "Madia Riga",
      "brand": "Linea Studio",
      "category": "Sideboards",
      "category_t2": "Furniture",
      "collection": "Riga",
      "designer": "Studio Linea",
      "dimensions": "W 180 x D 48 x H 76 cm",
      "weight": "58 kg",
      "description": "Wall-standing sideboard with ribbed ash doors and two inner drawers.",
      "website": "https://www.lineastudio.example/riga/madia"
    },
    {
      "id": "LNS-BK-0460",
      "name": "Libreria Riga",
      "brand": "Linea Studio",
      "category": "Bookcases",
      "category_t2": "Furniture",
      "collection": "Riga",
      "designer": "Studio Linea",
      "dimensions": "W 120 x D 38 x H 200 cm",
      "weight": "45 kg",
      "description": "Open bookcase in ash with five adjustable shelves; fixes to the wall.",
      "website": "https://www.lineastudio.example/riga/libreria"
    },
    {
      "id": "LNS-SH-0470",
      "name": "Mensola Filo",
      "brand": "Linea Studio",
      "category": "Shelves",
      "category_t2": "Furniture",
      "collection": "Filo",
      "designer": "Studio Linea",
      "dimensions": "W 100 x D 22 x H 24 cm",
      "weight": "6 kg",
      "description": "Wall shelf in powder-coated steel with concealed brackets.",
      "website": "https://www.lineastudio.example/filo/mensola"
    },
    {
      "id": "LNS-CH-0480",
      "name": "Sedia Riga",
      "brand": "Linea Studio",
      "category": "Chairs",
      "category_t2": "Furniture",
      "collection": "Riga",
      "designer": "Studio Linea",
      "dimensions": "W 44 x D 48 x H 80 cm",
      "weight": "4.8 kg",
      "description": "Stackable ash chair with a ribbed backrest.",
      "website": "https://www.lineastudio.example/riga/sedia"
    },
    {
      "id": "CVT-MR-0021",
      "name": "Specchio Luna",
      "brand": "Casa Vetro",
      "category": "Mirrors",
      "category_t2": "Decor",
      "collection": "Luna",
      "designer": "Chiara Conti",
      "dimensions": "W 80 x D 3 x H 100 cm",
      "weight": "9 kg",
      "description": "Oval wall mirror with a bronze-tinted bevelled edge.",
      "website": "https://www.casavetro.example/luna/specchio"
    },
    {
      "id": "CVT-VS-0033",
      "name": "Vaso Anfora",
      "brand": "Casa Vetro",
      "category": "Vases",
      "category_t2": "Decor",
      "collection": "Anfora",
      "designer": "Chiara Conti",
      "dimensions": "Ø 24 x H 40 cm",
      "weight": "2.1 kg",
      "description": "Mouth-blown glass vase in smoke grey.",
      "website": "https://www.casavetro.example/anfora/vaso"
    },
    {
      "id": "OFL-FL-0707",
      "name": "Stelo Terra",
      "brand": "Officina Luce",
      "category": "Floor Lamps",
      "category_t2": "Lighting",
      "collection": "Stelo",
      "designer": "Paolo Greco",
      "dimensions": "Ø 36 x H 165 cm",
      "weight": "7 kg",
      "description": "Floor lamp with a pleated linen shade on a slender brass stem; dimmable LED.",
      "website": "https://www.officinaluce.example/stelo/terra"
    },
    {
      "id": "OFL-WL-0715",
      "name": "Applique Goccia",
      "brand": "Officina Luce",
      "category": "Wall Lamps",
      "category_t2": "Lighting",
      "collection": "Goccia",
      "designer": "Paolo Greco",
      "dimensions": "W 24 x D 20 x H 30 cm",
      "weight": "1.2 kg",
      "description": "Wall light with a drop-shaped opal glass diffuser.",
      "website": "https://www.officinaluce.example/goccia/applique"
    },
    {
      "id": "OFL-PL-0730",
      "name": "Sospensione Nuvola",
      "brand": "Officina Luce",
      "category": "Pendant Lamps",
      "category_t2": "Lighting",
      "collection": "Nuvola",
      "designer": "Paolo Greco",
      "dimensions": "Ø 50 x H 60 cm",
      "weight": "3.4 kg",
      "description": "Pendant lamp with a cloud-like silk shade on an adjustable textile cable.",
      "website": "https://www.officinaluce.example/nuvola/sospensione"
    },
    {
      "id": "OFL-TL-0702",
      "name": "Stelo Tavolo",
      "brand": "Officina Luce",
      "category": "Table Lamps",
      "category_t2": "Lighting",
      "collection": "Stelo",
      "designer": "Paolo Greco",
      "dimensions": "Ø 20 x H 45 cm",
      "weight": "1.5 kg",
      "description": "Table lamp version of Stelo with a brass base.",
      "website": "https://www.officinaluce.example/stelo/tavolo"
    },
    {
      "id": "TSM-RG-0088",
      "name": "Tappeto Dune",
      "brand": "Tessile Mori",
      "category": "Rugs",
      "category_t2": "Decor",
      "collection": "Dune",
      "designer": "Sara Mori",
      "dimensions": "W 240 x D 170 cm",
      "weight": "11 kg",
      "description": "Hand-tufted wool rug with a low-relief dune pattern in sand tones.",
      "website": "https://www.tessilemori.example/dune/tappeto"
    },
    {
      "id": "TSM-CU-0091",
      "name": "Cuscino Righe",
      "brand": "Tessile Mori",
      "category": "Textiles",
      "category_t2": "",
      "collection": "Righe",
      "designer": "Sara Mori",
      "dimensions": "W 50 x H 45 cm",
      "weight": "0.6 kg",
      "description": "Striped linen cushion with a feather insert.",
      "website": "https://www.tessilemori.example/righe/cuscino"
    }
  ],
  "finishes": [
    {
      "id": "FIN-OAK-NAT",
      "name": "Natural Oak, oiled",
      "brand": "Forma Nova",
      "description": "European oak finished with a hard-wax oil that keeps the open grain matt.",
      "products": ["FNV-TB-2040", "FNV-CH-1102", "FNV-ST-1150"]
    },
    {
      "id": "FIN-ASH-BLK",
      "name": "Black-stained Ash",
      "brand": "Linea Studio",
      "description": "Ash stained deep black; the ribs of the doors catch the light.",
      "products": ["LNS-SB-0450", "LNS-BK-0460", "LNS-CH-0480"]
    },
    {
      "id": "FIN-MAR-CAR",
      "name": "Carrara Marble, honed",
      "brand": "Pietra Viva",
      "description": "White Carrara with grey veining, honed to a soft sheen.",
      "products": ["PVV-CT-0510"]
    },
    {
      "id": "FIN-BOU-IVO",
      "name": "Ivory Boucle",
      "brand": "Atelier Brera",
      "description": "Looped wool boucle in warm ivory, removable covers.",
      "products": ["ATB-SF-3300", "ATB-AC-3120"]
    }
  ]
}
)json";
        return Text;
    }
} // namespace OrvWebBridge
