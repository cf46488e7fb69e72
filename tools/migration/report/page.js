// Sorts and filters the cards. The page's address after "#" says how, so that a view can be
// kept as a bookmark: #status=failed&sort=lost
"use strict";
(() => {
  const list = document.getElementById("files");
  const form = document.getElementById("tools");
  const shown = document.getElementById("shown");
  const nothing = document.getElementById("nothing");
  const cards = [...list.children];
  const fields = ["q", "status", "code", "reader", "sort"];
  const verdicts = ["complete", "changed", "lossy", "failed"];
  const collator = new Intl.Collator(undefined, { numeric: true });
  const texts = new Map();
  let order = "";

  const number = (card, name) => Number(card.dataset[name]);
  const byPlace = (a, b) => number(a, "n") - number(b, "n");
  const orders = {
    place: byPlace,
    name: (a, b) => collator.compare(a.dataset.name, b.dataset.name) || byPlace(a, b),
    problems: (a, b) => number(b, "problems") - number(a, "problems") || byPlace(a, b),
    lost: (a, b) => number(b, "lost") - number(a, "lost") || byPlace(a, b),
    status: (a, b) =>
      verdicts.indexOf(b.dataset.verdict) - verdicts.indexOf(a.dataset.verdict) || byPlace(a, b),
  };

  const textOf = (card) => {
    if (!texts.has(card)) {
      texts.set(card, (card.dataset.name + " " + card.textContent).toLowerCase());
    }
    return texts.get(card);
  };

  const fitsStatus = (card, status) =>
    status === "" || card.dataset.verdict === status || card.dataset.status === status;

  const fits = (card, view) =>
    fitsStatus(card, view.status) &&
    (view.reader === "" || card.dataset.reader === view.reader) &&
    (view.code === "" || card.dataset.codes.split(" ").includes(view.code)) &&
    view.q.toLowerCase().split(/\s+/).every((word) => textOf(card).includes(word));

  const viewOfAddress = () => {
    const address = new URLSearchParams(location.hash.slice(1));
    return Object.fromEntries(fields.map((name) => [name, address.get(name) ?? ""]));
  };

  const viewOfForm = () =>
    Object.fromEntries(fields.map((name) => [name, form.elements[name].value]));

  const showInForm = (view) => {
    for (const name of fields) {
      form.elements[name].value = view[name];
    }
    form.elements.sort.value = view.sort in orders ? view.sort : "place";
  };

  const apply = (view) => {
    const wanted = view.sort in orders ? view.sort : "place";
    if (wanted !== order) {
      order = wanted;
      cards.sort(orders[order]);
      list.append(...cards);
    }
    let count = 0;
    for (const card of cards) {
      card.hidden = !fits(card, view);
      count += card.hidden ? 0 : 1;
    }
    shown.textContent = shown.dataset.words
      .replace("%1", count.toLocaleString()).replace("%2", cards.length.toLocaleString());
    nothing.hidden = count !== 0;
  };

  const remember = () => {
    const view = viewOfForm();
    const address = new URLSearchParams();
    for (const name of fields) {
      if (view[name] !== "" && !(name === "sort" && view[name] === "place")) {
        address.set(name, view[name]);
      }
    }
    history.replaceState(null, "", "#" + address);
    apply(view);
  };

  const follow = () => {
    const view = viewOfAddress();
    showInForm(view);
    apply(view);
  };

  // The picture that was written, or else the small one, next to the document's own.
  const large = document.getElementById("large");
  list.addEventListener("click", (event) => {
    const button = event.target.closest(".thumb button");
    if (button === null) {
      return;
    }
    const pictures = [...button.querySelectorAll("img")].map((img) => img.cloneNode());
    const small = pictures[0].src;
    if (button.dataset.picture !== "") {
      pictures[0].addEventListener("error", () => { pictures[0].src = small; }, { once: true });
      pictures[0].src = button.dataset.picture;
    }
    large.querySelector("div").replaceChildren(...pictures);
    large.showModal();
  });
  large.addEventListener("click", (event) => {
    if (event.target === large || event.target.tagName === "BUTTON") {
      large.close();
    }
  });

  // The window opens "labelport:" addresses, which are absolute: only a page on this machine
  // knows them.
  if (location.protocol === "file:") {
    for (const original of list.querySelectorAll("h2 a")) {
      const link = document.createElement("a");
      link.href = "labelport://" + new URL(original.href).pathname;
      link.textContent = list.dataset.open;
      link.className = "open";
      original.closest("h2").after(link);
    }
  }
  // A phone shows the labels before the long list of problems.
  if (matchMedia("(max-width: 40rem)").matches) {
    document.querySelector("header details")?.removeAttribute("open");
  }

  let waiting = 0;
  form.addEventListener("input", () => {
    clearTimeout(waiting);
    waiting = setTimeout(remember, 150);
  });
  form.addEventListener("submit", (event) => { event.preventDefault(); remember(); });
  form.addEventListener("reset", () => setTimeout(remember));
  addEventListener("hashchange", follow);
  form.hidden = false;
  follow();
})();
