"use strict";
document.getElementById("oauth-error").hidden = !new URLSearchParams(location.search).has("error");
