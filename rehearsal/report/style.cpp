#include "rehearsal/report/page.h"

namespace ornavel::rehearsal::report {

const char* const style_sheet = R"css(
:root {
  --paper: #faf8f3; --card: #ffffff; --ink: #23261f; --soft: #62645a; --line: #e3dfd2;
  --green: #2f6b45; --green-wash: #e4efe4; --amber: #855408; --amber-wash: #f8ebd0;
  --grey-wash: #eceae2; --red: #a3352b; --red-wash: #f7e2de;
  --serif: "Iowan Old Style", "Palatino Linotype", Palatino, Georgia, "Liberation Serif", serif;
  --sans: system-ui, "Segoe UI", "Helvetica Neue", "Liberation Sans", Arial, sans-serif;
  --mono: ui-monospace, Consolas, "Liberation Mono", monospace;
}
* { box-sizing: border-box; }
html { scroll-behavior: smooth; }
body { margin: 0; background: var(--paper); color: var(--ink); font: 16px/1.55 var(--sans); }
header, section { max-width: 1360px; margin: 0 auto; padding: 0 40px; }
header { padding-top: 64px; padding-bottom: 24px; }
h1, h2 { font-family: var(--serif); font-weight: 600; letter-spacing: -0.01em; text-wrap: balance; }
h1 { font-size: 46px; line-height: 1.1; margin: 0 0 16px; }
h2 { font-size: 28px; line-height: 1.2; margin: 0 0 12px; }
.eyebrow { margin: 0 0 8px; font-size: 12px; font-weight: 600; letter-spacing: 0.14em; text-transform: uppercase; color: var(--soft); }
.lead { max-width: 68ch; margin: 0; font-size: 17px; color: var(--soft); }
.origin { margin: 10px 0 0; font-size: 14px; color: var(--soft); }
.figures { display: flex; flex-wrap: wrap; gap: 12px 44px; margin: 32px 0; }
.figures div { display: flex; flex-direction: column-reverse; }
.figures dt { font-size: 13px; color: var(--soft); }
.figures dd { margin: 0; font: 600 32px/1.15 var(--serif); font-variant-numeric: tabular-nums lining-nums; }
table { border-collapse: collapse; }
.overview { width: 100%; background: var(--card); border: 1px solid var(--line); border-radius: 10px; border-collapse: separate; border-spacing: 0; overflow: hidden; }
.overview td { padding: 9px 16px; border-top: 1px solid var(--line); font-size: 15px; }
th { font-size: 12.5px; font-weight: 600; text-align: left; color: var(--soft); }
.overview th { padding: 9px 16px; white-space: nowrap; }
.overview th:last-child { text-align: right; }
.overview .number, .overview .gate { color: var(--soft); white-space: nowrap; font-variant-numeric: tabular-nums; }
.overview .number:last-child { text-align: right; }
a { color: inherit; text-decoration-color: #c9c4b2; text-underline-offset: 3px; }
a:hover { text-decoration-color: currentColor; }
.pill { display: inline-block; padding: 1px 11px; border-radius: 99px; font-size: 13px; font-weight: 600; white-space: nowrap; background: var(--grey-wash); color: var(--soft); }
.pill.dressed { background: var(--green-wash); color: var(--green); }
.pill.changed { background: #e3ecf4; color: #2f5678; }
.pill.look { background: var(--amber-wash); color: var(--amber); }
.pill.bad { background: var(--red-wash); color: var(--red); }
.pill + .pill { margin-left: 6px; }
.pill.held { background: var(--amber-wash); color: var(--amber); }
section { padding-top: 56px; padding-bottom: 24px; }
.sentence { max-width: 78ch; margin: 0 0 20px; font-size: 17px; color: #45483e; }
.pair { display: grid; grid-template-columns: minmax(0, 5fr) minmax(0, 7fr); gap: 24px; align-items: start; }
figure { margin: 0; min-width: 0; }
figcaption { margin: 0 0 6px; font-size: 13px; font-style: italic; font-family: var(--serif); color: var(--soft); }
.letter { background: var(--card); border: 1px solid var(--line); border-radius: 10px; overflow: hidden; box-shadow: 0 1px 2px rgba(60, 55, 35, .05), 0 12px 28px -18px rgba(60, 55, 35, .28); }
.envelope { display: flex; flex-direction: column; padding: 12px 18px 11px; border-bottom: 1px solid var(--line); background: #fdfcf9; line-height: 1.4; }
.envelope strong { font-size: 15px; }
.envelope span { font-size: 13px; color: var(--soft); }
iframe { display: block; width: 100%; border: 0; background: #fff; resize: vertical; }
.gates { display: flex; flex-wrap: wrap; gap: 6px; margin: 22px 0 14px; padding: 0; list-style: none; font-size: 12.5px; }
.gates li { padding: 2px 10px; border-radius: 99px; border: 1px solid #cfe0cf; background: var(--green-wash); color: var(--green); }
.gates li.left { border-color: #d8d4c6; background: var(--ink); color: #fff; font-weight: 600; }
.gates li.ended { border-color: #e3b7af; background: var(--red-wash); color: var(--red); font-weight: 600; }
.gates li.left::before { content: "left at "; font-weight: 400; }
.folds { margin-top: 2px; }
details { border-top: 1px solid var(--line); }
.folds details:last-child { border-bottom: 1px solid var(--line); }
summary { padding: 8px 2px; cursor: pointer; font-size: 14px; color: #45483e; }
summary:hover { color: var(--green); }
details > div, details > table { margin: 4px 0 16px; }
pre { margin: 0; font: 12px/1.5 var(--mono); white-space: pre-wrap; overflow-wrap: anywhere; }
.source pre { max-height: 480px; overflow: auto; padding: 14px 16px; background: var(--card); border: 1px solid var(--line); border-radius: 8px; }
mark { background: #fdf0c4; color: inherit; }
.journal { width: 100%; font: 12.5px/1.5 var(--mono); }
.journal td { padding: 2px 18px 2px 0; vertical-align: top; overflow-wrap: anywhere; }
.journal .verb { width: 1%; white-space: nowrap; overflow-wrap: normal; color: var(--green); }
.journal .what { width: 34%; }
.journal .value { color: var(--soft); }
.journal th { padding: 2px 18px 2px 0; font-family: var(--sans); }
.journal .failed td { color: var(--red); font-weight: 600; }
.notice { margin: 18px 0; padding: 12px 18px; border: 1px solid #e3b7af; border-radius: 10px; background: var(--red-wash); }
.notice h3 { margin: 0 0 4px; font-size: 15px; color: var(--red); }
.notice ul { margin: 0; padding-left: 20px; font-size: 14.5px; overflow-wrap: anywhere; }
.windows .bad { border-left-color: var(--red); }
.windows .bad em { color: var(--red); font-weight: 600; }
.windows { margin: 18px 0; padding: 0; list-style: none; }
.windows li { display: flex; flex-wrap: wrap; gap: 2px 14px; padding: 10px 16px; margin-bottom: 8px; border-left: 3px solid #d9b56a; background: var(--card); font-size: 14px; }
.windows span { flex: 1 1 40ch; white-space: pre-line; }
.windows em { color: var(--amber); }
.windows img { max-width: 100%; border-radius: 3px; box-shadow: 0 1px 3px rgba(60, 55, 35, .35); }
.windows .look, .windows details { flex: 1 1 100%; margin: 6px 0 4px; }
.windows .look p { margin: 2px 0 0; color: var(--soft); font-size: 13px; }
.drawn .box { padding: 0 8px; border: 1px solid var(--soft); }
.drawn .button { padding: 0 12px; border: 1px solid var(--soft); border-radius: 4px; background: var(--grey-wash); }
.drawn .off span { color: var(--soft); font-style: italic; }
.verdicts { display: flex; flex-wrap: wrap; gap: 6px 22px; margin: 14px 0 0; padding: 0; list-style: none; font-size: 14px; }
.verdicts .good { color: var(--green); }
.verdicts .good::before { content: "\2713\00a0"; }
.verdicts .bad { flex-basis: 100%; color: var(--red); font-weight: 600; overflow-wrap: anywhere; }
.verdicts .bad::before { content: "\2717\00a0"; }
main { padding-bottom: 96px; }
@media (max-width: 900px) { .pair { grid-template-columns: minmax(0, 1fr); } header, section { padding-left: 20px; padding-right: 20px; } .overview .gate { display: none; } }
@media print { iframe { resize: none; } section { break-inside: avoid; } }
)css";

} // namespace ornavel::rehearsal::report
