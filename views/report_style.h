// How the report's pages look: light and dark as the reader's system is, in one column on narrow screens, and on paper.
#pragma once

#include <cstddef>

namespace standin::views {

inline constexpr const char* kReportStyle = R"(
:root { color-scheme: light dark; --text: #1f2328; --faint: #5b636d; --ground: #fdfdfc; --raised: #f3f3f0; --line: #d6d6d0;
  --link: #0b57b8; --good: #176d2c; --bad: #b00020; --mild: #855b00; --problem: #d1242f; --step: 1.1rem; }
@media (prefers-color-scheme: dark) {
  :root { --text: #e4e6e8; --faint: #a2a9b1; --ground: #17191c; --raised: #212429; --line: #3b4047;
    --link: #82b6ff; --good: #74cf88; --bad: #ff8a8f; --mild: #e5b45a; --problem: #ff7479; }
}
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem 1.25rem 4rem; max-width: 84rem; color: var(--text); background: var(--ground);
  font: 16px/1.55 system-ui, "Segoe UI", "Yu Gothic UI", "Meiryo", "Noto Sans CJK JP", sans-serif; }
a { color: var(--link); }
h1 { font-size: 1.7rem; line-height: 1.2; margin: .6rem 0 .4rem; overflow-wrap: anywhere; }
h2 { font-size: 1.3rem; margin: 2.4rem 0 .5rem; border-bottom: 1px solid var(--line); padding-bottom: .2rem; overflow-wrap: anywhere; }
h3 { font-size: 1rem; margin: 1.4rem 0 .4rem; overflow-wrap: anywhere; }
p { margin: .4rem 0; max-width: 60rem; }
.faint, figcaption { color: var(--faint); }
.good { color: var(--good); }
.bad { color: var(--bad); }
.mild { color: var(--mild); }
.good, .bad, .mild { font-weight: 600; }
.facts { display: flex; flex-wrap: wrap; gap: .3rem 1.2rem; margin: .3rem 0; padding: 0; list-style: none; }
nav ul { display: flex; flex-wrap: wrap; gap: .2rem 1rem; margin: .6rem 0 0; padding: 0; list-style: none; }
.pictures { display: grid; grid-template-columns: 1fr 1fr; gap: 1rem; }
figure { margin: 0; min-width: 0; }
figcaption { font-size: .9rem; }
figure svg { display: block; width: 100%; height: auto; max-height: 85vh; }
.box { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid var(--line); padding: .35rem .6rem; text-align: left; vertical-align: top; font-weight: normal; }
thead th { border-bottom: 2px solid var(--line); color: var(--faint); font-size: .9rem; }
td { overflow-wrap: anywhere; }
tbody th { font-weight: 600; white-space: nowrap; }
.number { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
.changes td { min-width: 8rem; }
.tree tbody th { width: 1%; }
.d1 { padding-left: calc(.6rem + 1 * var(--step)); }
.d2 { padding-left: calc(.6rem + 2 * var(--step)); }
.d3 { padding-left: calc(.6rem + 3 * var(--step)); }
.d4 { padding-left: calc(.6rem + 4 * var(--step)); }
.d5 { padding-left: calc(.6rem + 5 * var(--step)); }
.d6 { padding-left: calc(.6rem + 6 * var(--step)); }
.d7 { padding-left: calc(.6rem + 7 * var(--step)); }
.d8 { padding-left: calc(.6rem + 8 * var(--step)); }
.d9 { padding-left: calc(.6rem + 9 * var(--step)); }
dl { margin: 0; }
dt { color: var(--faint); }
dd { margin: 0; overflow-wrap: anywhere; }
.settings { columns: 15rem; column-gap: 1.5rem; font-size: .9rem; }
.settings div { display: flex; gap: .6em; justify-content: space-between; break-inside: avoid; border-bottom: 1px dotted var(--line); }
.settings dd { text-align: right; min-width: 30%; }
.told div { display: grid; grid-template-columns: 14rem 1fr; gap: .2rem 1rem; padding: .2rem 0; }
.findings { padding: 0; list-style: none; }
.findings li { margin: .6rem 0; padding: .1rem 0 .1rem .8rem; border-left: 4px solid var(--line); overflow-wrap: anywhere; }
.findings .problem { border-left-color: var(--bad); }
.two { display: grid; grid-template-columns: 1fr 1fr; gap: 1rem; }
.two > div { min-width: 0; }
pre { margin: 0; padding: .7rem; background: var(--raised); border: 1px solid var(--line); border-radius: 6px; overflow-x: auto;
  font: .82rem/1.45 Consolas, "MS Gothic", "Noto Sans Mono CJK JP", monospace; }
.two pre { max-height: 36rem; overflow: auto; }
details { border-bottom: 1px solid var(--line); }
summary { padding: .3rem 0; cursor: pointer; overflow-wrap: anywhere; }
details pre { margin-bottom: .7rem; }
:target { outline: 2px solid var(--link); outline-offset: 2px; }
@media (max-width: 700px) {
  :root { --step: .6rem; }
  body { padding: .5rem .8rem 3rem; }
  .pictures, .two { grid-template-columns: 1fr; }
  .two pre { max-height: 24rem; }
  .tree, .tree tbody, .tree tr, .tree th, .tree td { display: block; width: auto; }
  .tree tbody th { width: auto; white-space: normal; border-bottom: 0; overflow-wrap: anywhere; }
  .tree thead { display: none; }
  .told div { grid-template-columns: 1fr; }
}
@media print {
  :root { color-scheme: light; --text: #000; --faint: #444; --ground: #fff; --raised: #fff; --line: #bbb; --link: #000; --good: #000;
    --bad: #000; --mild: #000; --problem: #d1242f; }
  body { max-width: none; padding: 0; font-size: 10pt; }
  nav { display: none; }
  figure, tr, .findings li { break-inside: avoid; }
  h2, h3 { break-after: avoid; }
  .two pre { max-height: none; }
  pre { white-space: pre-wrap; overflow-wrap: anywhere; }
  .pictures { grid-template-columns: 1fr 1fr; }
  figure svg { max-height: 9cm; }
}
)";

// Deeper skelegons stand as far in as these: a chain of thousands would leave the page.
inline constexpr std::size_t kDeepestStep = 9;

}  // namespace standin::views
