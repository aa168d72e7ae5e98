// mutool run mupdf.js FILE
//
// Prints as JSON what MuPDF has of a PDF file: all objects that are no streams, in the form in
// which qpdf prints them, the outline as it shows it, and the links that it can follow, each as
// "PAGE LEFT BOTTOM RIGHT TOP TARGET".

function plain(value) {
  if (value.isIndirect()) return value.asIndirect() + " 0 R";
  if (value.isName()) return "/" + value.asName();
  if (value.isString()) return value.asString();
  if (value.isNumber()) return value.valueOf();
  var result;
  if (value.isArray()) {
    result = [];
    for (var i = 0; i < value.length; ++i) result.push(plain(value.get(i)));
    return result;
  }
  if (value.isDictionary()) {
    result = {};
    // Releases of MuPDF differ in what comes first.
    value.forEach(function (a, b) {
      var isKeyFirst = typeof a === "string";
      result["/" + (isKeyFirst ? a : b)] = plain(isKeyFirst ? b : a);
    });
    return result;
  }
  return null;
}

var file = new Document(scriptArgs[0]);
var told = {objects: {}, trailer: plain(file.getTrailer()), outline: file.loadOutline(), links: []};
for (var number = 1; number < file.countObjects(); ++number) {
  var object = file.newIndirect(number);
  if (!object.isStream()) told.objects[number + " 0 R"] = plain(object.resolve());
}
for (var i = 0; i < file.countPages(); ++i) {
  var page = file.loadPage(i);
  var height = (page.getBounds || page.bound).call(page)[3];
  page.getLinks().forEach(function (link) {
    // MuPDF counts downwards from the top of the page.
    var edges = [link.bounds[0], height - link.bounds[3], link.bounds[2], height - link.bounds[1]];
    var target = /^#page=(\d+)/.exec(link.uri);
    told.links.push((i + 1) + " " + edges.join(" ") + " " + target[1]);
  });
}
print(JSON.stringify(told));
