// A page of any bytes goes through the pre-pass.
#include "platform/qt/html/html_prepass.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string page = skyloft::TidyHtml(std::string_view(reinterpret_cast<const char*>(bytes), size));
  skyloft::Require(size > 0 || page.empty(), "an empty page yields an empty page");
  // The tags that close what is open at the end come on top; no name is as long as this.
  const std::size_t bound = skyloft::HtmlLimits::kBytes + skyloft::HtmlLimits::kDepth * 16;
  skyloft::Require(page.size() <= bound, "what is made of a page is bounded");
  return 0;
}
