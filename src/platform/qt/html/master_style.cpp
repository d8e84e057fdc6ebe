#include "platform/qt/html/master_style.h"

namespace skyloft {

// br and img are inline blocks because the engine gives an inline element no box of its own. Tables do not
// inherit what surrounds them (the quirks of pages without a document type).
const char kMasterStyle[] = R"css(
html, body, div, p, center, form, fieldset, address, blockquote, pre, h1, h2, h3, h4, h5, h6, ul, ol, dl, dt, dd, hr,
applet { display: block }
head, title, meta, link, style, script, param, bgsound, noframes, col, colgroup, area, map { display: none }
body { margin: 8px; color: #000000; font-family: 'Times New Roman' }
p, dl, ul, ol, pre, blockquote { margin-top: 1em; margin-bottom: 1em }
td > p:first-child, th > p:first-child { margin-top: 0 }
td > p:last-child, th > p:last-child { margin-bottom: 0 }
h1 { font-size: 2em; margin: 0.67em 0; font-weight: bold }
h2 { font-size: 1.5em; margin: 0.75em 0; font-weight: bold }
h3 { font-size: 1.17em; margin: 0.83em 0; font-weight: bold }
h4 { margin: 1.12em 0; font-weight: bold }
h5 { font-size: 0.83em; margin: 1.5em 0; font-weight: bold }
h6 { font-size: 0.75em; margin: 1.67em 0; font-weight: bold }
blockquote { margin-left: 40px; margin-right: 40px }
ul, ol { padding-left: 40px }
ul { list-style-type: disc }
ol { list-style-type: decimal }
li { display: list-item }
dd { margin-left: 40px }
center { text-align: center }
b, strong { font-weight: bold }
i, em, cite, var, dfn, address { font-style: italic }
u, ins { text-decoration: underline }
s, strike, del { text-decoration: line-through }
big { font-size: 1.17em }
small { font-size: 0.83em }
sub { vertical-align: sub; font-size: 0.83em }
sup { vertical-align: super; font-size: 0.83em }
pre { white-space: pre }
nobr { white-space: nowrap }
pre, tt, code, kbd, samp { font-family: 'Courier New'; font-size: 13px }
a:link { color: #0000ee; text-decoration: underline; cursor: pointer }
br, img { display: inline-block; vertical-align: baseline }
hr { border-top: 1px solid #808080; border-bottom: 1px solid #d4d0c8; margin: 8px 0 }
table { display: table; border-collapse: separate; border-spacing: 2px; text-align: left; font-size: 16px;
  font-weight: normal; font-style: normal; line-height: normal; white-space: normal }
caption { display: table-caption; text-align: center }
tbody { display: table-row-group; vertical-align: middle }
thead { display: table-header-group; vertical-align: middle }
tfoot { display: table-footer-group; vertical-align: middle }
tr { display: table-row; vertical-align: inherit }
td, th { display: table-cell; vertical-align: inherit; padding: 1px }
th { font-weight: bold; text-align: center }
)css";

}  // namespace skyloft
