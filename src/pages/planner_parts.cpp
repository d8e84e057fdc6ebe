#include "pages/planner_parts.h"

#include "feed/addresses.h"
#include "pages/fragments.h"

namespace skyloft {
namespace {

void AppendBand(std::string& page, std::string_view cell, std::string_view picture) {
  Append(page, {"<div align='left'>",
                "  <table border='0' width='540' cellspacing='0' cellpadding='0' bgcolor='#000000'>"});
  OpenRow(page);
  Append(page, {cell, picture, "'>&nbsp;</td>"});
  CloseRow(page);
  ClosePlannerTable(page);
}

}  // namespace

void AppendPlannerHead(std::string& page, std::string_view title,
                       std::initializer_list<std::string_view> more_style) {
  Append(page,
         {"<html>", "<head>", "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
          "<title>", title, "</title>", "<style type='text/css'>", "TD", "{", "font-family: Tahoma;",
          "font-size: 11px;", "}"});
  Append(page, more_style);
  Append(page, {"</style>", "<link rel='stylesheet' type='text/css' href='", kStyleSheet, "'>", "</head>",
                "<body bgcolor='#000000' scroll='no' border='0' topmargin='10' leftmargin='6'>"});
}

void AppendFirstBand(std::string& page, std::string_view picture) {
  AppendBand(page,
             "      <td valign='middle' align='left' width='540' height='19' background='file:", picture);
}

void AppendSecondBand(std::string& page, std::string_view picture) {
  AppendBand(page, "      <td valign='middle' align='center' height='19' background='file:", picture);
}

void OpenPlannerTable(std::string& page, std::string_view attributes) {
  Append(page, {"<div align='left'>", "  <table border='1' width='540' ", attributes, ">"});
}

void ClosePlannerTable(std::string& page) { Append(page, {"  </table>", "</div>"}); }

void OpenRow(std::string& page) { page += "    <tr>"; }

void CloseRow(std::string& page) { page += "    </tr>"; }

void AppendPlannerEnd(std::string& page) { Append(page, {"</body>", "</html>"}); }

}  // namespace skyloft
