#include "rehearsal/report/page.h"

namespace ornavel::rehearsal::report {

const char* const measuring_script = R"js(
for (const frame of document.querySelectorAll("iframe")) {
  const fit = () => {
    const page = frame.contentDocument;
    if (!page || !page.body) return;
    frame.style.height = "1px";
    frame.style.height = Math.max(page.documentElement.scrollHeight, page.body.scrollHeight) + "px";
  };
  frame.addEventListener("load", fit);
  addEventListener("resize", fit);
  fit();
}
)js";

const char* const measuring_script_hash = "sha256-bJwVcqBYRTKfPSRiyKzJhwqcp7y6+gctRQX3iakT9ss=";

} // namespace ornavel::rehearsal::report
