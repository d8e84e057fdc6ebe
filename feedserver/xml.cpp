#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

void AppendEscaped(std::string& text, std::string_view value) {
  for (const char c : value) {
    switch (c) {
      case '&': text += "&amp;"; break;
      case '<': text += "&lt;"; break;
      case '>': text += "&gt;"; break;
      case '\r': text += "&#13;"; break;
      case '\n': text += "&#10;"; break;
      case '\t': text += c; break;
      default:
        // XML has no other control characters, not even escaped.
        if (static_cast<unsigned char>(c) >= ' ') text += c;
    }
  }
}

}  // namespace

XmlDocument::XmlDocument(std::string_view root) : root_(root) {
  text_ = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n";
  text_ += "<!-- Simulated weather, made up by skyloft-feed. Not for real use. -->\n";
  text_ += '<' + root_ + ">\n";
}

void XmlDocument::Add(std::string_view tag, std::string_view value) {
  text_.append(1, '<').append(tag).append(1, '>');
  AppendEscaped(text_, value);
  text_.append("</").append(tag).append(">\n");
}

std::string XmlDocument::Finish() && { return std::move(text_) + "</" + root_ + ">\n"; }

}  // namespace skyloft::feed
