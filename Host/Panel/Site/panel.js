// The demo catalogue site's panel page: signs in, shows the library, downloads with live progress and
// lists every event the editor sends through window.__orv_emit.
"use strict";

const Bridge = window.ue && window.ue.orvbridge;
const Element = (Id) => document.getElementById(Id);

function LogEvent(Name, Payload) {
    const Item = document.createElement("li");
    const Time = new Date().toLocaleTimeString();
    Item.textContent = `${Time}  ${Name}${Payload === null || Payload === undefined ? "" : "  " + JSON.stringify(Payload)}`;
    Item.dataset.event = Name;
    Element("event-log").prepend(Item);
}

function ShowDownload(Name, Progress) {
    Element("download").hidden = Name === null;
    if (Name !== null) {
        Element("download-name").textContent = Name;
    }
    if (Progress !== undefined) {
        Element("download-progress").value = Progress;
    }
}

// The editor calls this for every event; the page decides what each means.
window.__orv_emit = (Name, Payload) => {
    LogEvent(Name, Payload);
    if (Name === "downloader.queue.updated") {
        ShowDownload(Payload.currentDownload, 0);
    } else if (Name === "downloader.queue.progress") {
        Element("download-progress").value = Payload.progress;
    } else if (Name === "downloader.queue.finished") {
        ShowDownload(null);
    } else if (Name === "library.updated") {
        Render();
    }
};

function ProductRow(File, Installed) {
    const Row = Element("product-row").content.firstElementChild.cloneNode(true);
    Row.dataset.productId = File.productid;
    const Link = Row.querySelector(".product-name");
    Link.textContent = File.name;
    Link.href = `/go/product/${encodeURIComponent(File.productid)}`;
    Row.querySelector(".product-id").textContent = File.productid;
    Row.querySelector(".state").textContent = Installed ? "Installed" : "";
    Row.classList.toggle("installed", Installed);
    Row.querySelector(".download-button").textContent = Installed ? "Download again" : "Download";
    Row.querySelector(".download-button").addEventListener("click", () =>
        Bridge.addassetdownload(File.productid, File.assetType || "product"));
    const Add = Row.querySelector(".add-button");
    Add.hidden = !Installed;
    Add.addEventListener("click", () => Bridge.addproducttoproject(File.productid));
    Row.querySelector(".remove-button").addEventListener("click", () => Bridge.removeproductfromlibrary(File.productid));
    return Row;
}

let Rendering = Promise.resolve();
function Render() {
    Rendering = Rendering.then(RenderNow, RenderNow);
    return Rendering;
}

async function RenderNow() {
    const SignedIn = await Bridge.iscoreauthorized();
    Element("sign-in").hidden = SignedIn;
    Element("library").hidden = !SignedIn;
    Element("account").hidden = !SignedIn;
    if (!SignedIn) {
        return;
    }
    const User = JSON.parse(await Bridge.getuserdetails());
    Element("user-name").textContent = User.name || User.username || "";
    const Library = JSON.parse(await Bridge.getlibraryinfo());
    const Installed = new Set((Library.installedProducts || []).flatMap((Product) => Product.files.map((File) => File.product)));
    const List = Element("library-list");
    List.replaceChildren(...(Library.files || []).map((File) => ProductRow(File, Installed.has(File.productid))));
    Element("library-empty").hidden = List.children.length > 0;
}

function ReadCookie(Name) {
    const Found = document.cookie.split("; ").find((Pair) => Pair.startsWith(`${Name}=`));
    return Found ? decodeURIComponent(Found.slice(Name.length + 1)) : "";
}

function Start() {
    if (!Bridge) {
        Element("no-bridge").hidden = false;
        return;
    }
    Element("sign-in-form").addEventListener("submit", async (Event) => {
        Event.preventDefault();
        await Bridge.signin(Element("username").value, Element("password").value);
        const SignedIn = await Bridge.iscoreauthorized();
        Element("sign-in-error").hidden = SignedIn;
        await Render();
    });
    // The popup signs in on the site; the site hands its session to the editor, which reloads the panel.
    Element("sign-in-popup").addEventListener("click", () =>
        Bridge.openoauthpopup(`${location.origin}/oauth/sign-in`));
    window.addEventListener("orv-oauth-complete", () => {
        LogEvent("orv-oauth-complete", null);
        const Token = ReadCookie("orvsite");
        if (Token) {
            Bridge.setsessiontoken(Token);
        }
    });
    Element("sign-out").addEventListener("click", async () => {
        await Bridge.logoutuser();
        await Render();
    });
    Element("test-event").addEventListener("click", () => Bridge.testorveventbus());
    Element("refresh").addEventListener("click", () => Bridge.refreshpanel());
    Element("clear-library").addEventListener("click", () => Bridge.clearlibrarydata());
    Render();
}

Start();
