(function () {
  "use strict";
  var dialog = document.querySelector("dialog.large");
  var links = Array.prototype.slice.call(document.querySelectorAll("a.picture"));
  if (!dialog || !dialog.showModal || !links.length) return;
  var find = function (name) { return dialog.querySelector("." + name); };
  var view = new Image(), play = find("play"), story = find("story"), legend = find("legend");
  var isAlone = "alone" in document.body.dataset;
  var delay = +document.body.dataset.delay, at = 0, timer = 0, x = null;

  view.className = "view";
  dialog.prepend(view);

  function lines(text) {
    return text.split(/\n{2,}/).map(function (line) {
      var p = document.createElement("p");
      p.dir = "auto";
      p.textContent = line;
      return p;
    });
  }
  function show(number) {
    at = (number + links.length) % links.length;
    var link = links[at], image = link.querySelector("img");
    var caption = link.parentNode.querySelector("figcaption");
    var text = link.closest(".paragraph").querySelector(".text");
    view.removeAttribute("src");
    view.src = isAlone ? image.src : link.href;
    view.alt = image.alt;
    view.style.animation = "none";
    void view.offsetWidth;
    view.style.animation = "";
    legend.textContent = caption ? caption.textContent : "";
    story.replaceChildren.apply(story, "text" in link.dataset ? lines(link.dataset.text)
      : Array.prototype.map.call(text.children, function (p) { return p.cloneNode(true); }));
    find("place").textContent = at + 1 + " / " + links.length;
    find("words").scrollTop = 0;
    if (!isAlone && at + 1 < links.length) new Image().src = links[at + 1].href;
    if (timer) run(true);
  }
  function run(on) {
    clearTimeout(timer);
    timer = on ? setTimeout(function () { show(at + 1); }, delay) : 0;
    play.setAttribute("aria-pressed", String(on));
  }
  function open(number) {
    dialog.showModal();
    show(number);
    find("on").focus();
    history.pushState("large", "");
  }
  links.forEach(function (link, number) {
    link.addEventListener("click", function (event) {
      if (event.ctrlKey || event.metaKey || event.shiftKey) return;
      event.preventDefault();
      open(number);
    });
  });
  dialog.addEventListener("close", function () {
    run(false);
    links[at].focus();
    if (history.state === "large") history.back();
  });
  addEventListener("popstate", function () { if (dialog.open) dialog.close(); });
  find("back").onclick = function () { show(at - 1); };
  find("on").onclick = function () { show(at + 1); };
  find("shut").onclick = function () { dialog.close(); };
  play.onclick = function () { run(!timer); };
  dialog.addEventListener("keydown", function (event) {
    var on = document.documentElement.dir === "rtl" ? -1 : 1;
    var steps = { ArrowRight: on, ArrowLeft: -on, PageDown: 1, PageUp: -1 };
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    if (steps[event.key]) show(at + steps[event.key]);
    else if (event.key === "Home") show(0);
    else if (event.key === "End") show(links.length - 1);
    else return;
    event.preventDefault();
  });
  dialog.addEventListener("pointerdown", function (event) { x = event.isPrimary ? event.clientX : null; });
  dialog.addEventListener("pointerup", function (event) {
    var way = x === null ? 0 : event.clientX - x;
    x = null;
    if (Math.abs(way) < 60 || event.target.closest(".words")) return;
    show(at + (way < 0 ? 1 : -1) * (document.documentElement.dir === "rtl" ? -1 : 1));
  });
})();
