// Product and finish pages (/go/product/<id>, /go/finish/<id>), built from the host's catalogue data.
"use strict";

const Kind = location.pathname.startsWith("/go/finish/") ? "finish" : "product";
const Id = decodeURIComponent(location.pathname.split("/").pop());
const Text = (ElementId, Value) => (document.getElementById(ElementId).textContent = Value || "");

function Link(Href, Label) {
    const Item = document.createElement("li");
    const Anchor = document.createElement("a");
    Anchor.href = Href;
    Anchor.textContent = Label;
    Item.append(Anchor);
    return Item;
}

async function Show() {
    const Catalog = await (await fetch("/__orv/catalog.json")).json();
    const Products = new Map(Catalog.products.map((Product) => [Product.id, Product]));
    const Record = Kind === "product" ? Products.get(Id) : Catalog.finishes.find((Finish) => Finish.id === Id);
    if (!Record) {
        Text("detail-name", `No ${Kind} ${Id} in the catalogue`);
        return;
    }
    document.title = `${Record.name} - ORVESSA Catalogue`;
    Text("detail-brand", Record.brand);
    Text("detail-name", Record.name);
    Text("detail-description", Record.description);
    const Facts = document.getElementById("detail-facts");
    for (const [Label, Key] of [["Id", "id"], ["Category", "category"], ["Collection", "collection"],
        ["Designer", "designer"], ["Dimensions", "dimensions"], ["Weight", "weight"]]) {
        if (Record[Key]) {
            const Term = document.createElement("dt");
            Term.textContent = Label;
            const Value = document.createElement("dd");
            Value.textContent = Record[Key];
            Facts.append(Term, Value);
        }
    }
    const Related = Kind === "product"
        ? Catalog.finishes.filter((Finish) => (Finish.products || []).includes(Id))
            .map((Finish) => Link(`/go/finish/${encodeURIComponent(Finish.id)}`, Finish.name))
        : (Record.products || []).filter((ProductId) => Products.has(ProductId))
            .map((ProductId) => Link(`/go/product/${encodeURIComponent(ProductId)}`, Products.get(ProductId).name));
    document.getElementById("detail-related").replaceChildren(...Related);
    Text("detail-related-title", Kind === "product" ? "Finishes" : "Made in this finish");
    document.getElementById("detail-related-title").hidden = Related.length === 0;
    const Download = document.getElementById("detail-download");
    if (Kind === "product" && window.ue && window.ue.orvbridge) {
        Download.addEventListener("click", () => window.ue.orvbridge.addassetdownload(Id, "product"));
    } else {
        Download.hidden = true;
    }
}

Show();
