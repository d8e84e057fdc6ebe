// Every kind of page of the program, drawn with the program's own pictures. With SKYLOFT_PICTURES set to a
// folder, each page is saved there for a look.
#include <gtest/gtest.h>

#include <QImage>

#include "html_testing.h"

namespace skyloft::testing {
namespace {

const std::string kInstall = "C:\\program files\\skyloft";
const QColor kBlack(Qt::black), kWhite(Qt::white), kLabel(0x99, 0xCC, 0xFF), kPale(0xFF, 0xFF, 0xCC);

HtmlServices ShareServices() {
  HtmlServices services;
  services.local_path = [](const QString& path) {
    return SKYLOFT_SHARE + path.mid(int(kInstall.size())).replace('\\', '/');
  };
  return services;
}

QImage ShowKind(const char* name, const std::string& page, const QSize& size) {
  const QImage image = Show(page, size, ShareServices());
  const QString folder = qEnvironmentVariable("SKYLOFT_PICTURES");
  if (!folder.isEmpty()) image.save(folder + '/' + name + ".png");
  return image;
}

QImage Share(const char* name) {
  return QImage(QString(SKYLOFT_SHARE) + name).convertToFormat(QImage::Format_RGB32);
}

// Whether a picture stands in the image, pixel by pixel but for a few (a JPEG is decoded alike in both).
bool Contains(const QImage& image, const QImage& picture, const QPoint& place) {
  int same = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QPoint at = place + QPoint(x, y);
      same += image.rect().contains(at) && image.pixel(at) == picture.pixel(x, y);
    }
  }
  return same >= picture.width() * picture.height() * 95 / 100;
}

// Where a picture first stands in the image; (-1, -1) for nowhere.
QPoint Find(const QImage& image, const QImage& picture) {
  for (int y = 0; y + picture.height() <= image.height(); ++y) {
    for (int x = 0; x + picture.width() <= image.width(); ++x) {
      const QPoint corner(picture.width() - 1, picture.height() - 1);
      const QPoint middle(picture.width() / 2, picture.height() / 2);
      if (image.pixel(x, y) != picture.pixel(0, 0) ||
          image.pixel(QPoint(x, y) + corner) != picture.pixel(corner) ||
          image.pixel(QPoint(x, y) + middle) != picture.pixel(middle)) {
        continue;
      }
      if (Contains(image, picture, {x, y})) return {x, y};
    }
  }
  return {-1, -1};
}

std::string PlannerHead(const std::string& title, const std::string& rules) {
  return "<html><head><meta http-equiv='Content-Type' content='text/html; charset=windows-1252'><title>" +
         title + "</title><style type='text/css'>" + rules +
         "</style></head><body bgcolor='#000000' scroll='no' border='0' topmargin='10' leftmargin='6'>";
}

std::string Band(const std::string& cell, const std::string& picture) {
  return "<div align='left'>  <table border='0' width='540' cellspacing='0' cellpadding='0' "
         "bgcolor='#000000'>    "
         "<tr>      <td valign='middle' align='" +
         cell + " background='file:" + kInstall + "\\backgrounds\\" + picture +
         "'>&nbsp;</td>    </tr>  </table></div>";
}

std::string Row(const std::string& label, int cells, const std::string& opening, const std::string& value,
                const std::string& closing) {
  std::string row =
      "<tr>      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'><font color='#000000'>" +
      label + "</td>";
  for (int i = 0; i < cells; ++i) row += opening + value + closing;
  return row + "</tr>";
}

std::string Icon(const std::string& name) { return kInstall + "\\icons\\" + name; }

const std::string kCell = "      <td valign='middle' align='center' bgcolor='#FFFFFF'>";

// The hourly planner: a band, ten rows of twelve hours, a band, the periods.
std::string HourlyPage() {
  std::string page =
      PlannerHead("Weather Planner", "TD{font-family: Tahoma;font-size: 11px;}") +
      Band("left' width='540' height='19'", "hourlya.jpg") +
      "<div align='left'>  <table border='1' width='540' cellspacing='0' cellpadding='0'>" +
      Row("Time", 12, "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>", "09 AM",
          "</b></td>") +
      Row("Sky&nbsp;", 12, "      <td bgcolor='#FFFFFF'><img border='0' src='file:", Icon("sprtcloud.gif"),
          "' width='40' height='30'></td>") +
      Row("Temp", 12, "      <td valign='middle' align='center' bgcolor='#FFFFFF'><b>", "58", "</b></td>");
  for (const char* label : {"Fslk", "Dewp", "Rhum", "Wdir", "Wspd", "Rain", "Snow"}) {
    page += Row(label, 12, kCell, "12", "</td>");
  }
  page += "  </table></div>" + Band("center' height='19'", "dailya.jpg") +
          "<div align='left'>  <table border='1' width='540' height='85' cellspacing='0' cellpadding='0'>";
  const auto periods = [](const std::string& opening, const std::string& value) {
    std::string row = "<tr>";
    for (const char* width : {"103", "101", "103", "101", "103"}) {
      row += "      <td valign='middle' align='center' bgcolor='#FFFFFF' width='" + std::string(width) +
             "'><font color='#000080'>" + opening + value;
    }
    return row + "</tr>";
  };
  page += "<tr>";
  for (const char* width : {"103", "101", "102", "102", "102"}) {
    page += "      <td width='" + std::string(width) +
            "' height='13' bgcolor='#FFFFCC' align='center'><b>Monday Night</b></td>";
  }
  page += "</tr><tr>";
  for (const char* width : {"103", "101", "102", "102", "102"}) {
    page +=
        "      <td width='" + std::string(width) +
        "' height='43' bgcolor='#FFFFFF' align='center'><img border='0' src='file:" + Icon("smodrain.gif") +
        "' width='40' height='30'><br>        frzng rain / snow</td>";
  }
  page += "</tr>" + periods("Temp:</font>        <font color='#000000'><b>", "68 F</b></font></td>") +
          periods("Fslk:</font>        ", "66 F</td>") + periods("Wind:</font>        ", "SSW 12 mph</td>") +
          periods("Rain:&nbsp;</font><font color='green'><b>", "0.05 in</b>&nbsp;</font></td>") +
          periods("Snow:&nbsp;</font><font color='blue'><b>", "</b>&nbsp;</font></td>") +
          periods("Severe:&nbsp;</font></td>", "");
  return page + "  </table></div></body></html>";
}

TEST(HtmlKinds, HourlyPlanner) {
  const QImage image = ShowKind("hourly", HourlyPage(), {604, 415});
  EXPECT_EQ(Extent(image, kLabel).left(), 6 + 1 + 1)
      << "behind the page's margin, the table's line and the cell's";
  const QPoint band = Find(image, Share("/backgrounds/hourlya.jpg").copy(0, 0, 200, 10));
  EXPECT_EQ(band, QPoint(6, 10)) << "the first band lies at the page's margins";
  const QPoint second = Find(image, Share("/backgrounds/dailya.jpg").copy(0, 0, 200, 10));
  EXPECT_EQ(second.x(), 6);
  EXPECT_GT(second.y(), 150);
  const QPoint icon = Find(image, Share("/icons/sprtcloud.gif"));
  EXPECT_GT(icon.y(), band.y() + 19);
  EXPECT_LT(icon.y(), second.y());
  EXPECT_GT(Find(image, Share("/icons/smodrain.gif")).y(), second.y());
  EXPECT_GT(Count(image, kPale), 1000);
  EXPECT_GT(Count(image, QColor(0, 128, 0)), 20) << "green rain";
  EXPECT_LE(Extent(image, kWhite).right(), 6 + 540) << "nothing is wider than its table";
  EXPECT_LE(Extent(image, kWhite).bottom(), 414) << "the page fits its display";
}

std::string ExtendedTable(const std::string& temperature_color) {
  std::string table = "<div align='left'>  <table border='1' width='540' cellspacing='0' cellpadding='0'>";
  const auto row = [&](const char* label, const std::string& opening, const char* value,
                       const char* closing) {
    table += "<tr>      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'>" +
             std::string(label) + "</td>";
    for (int i = 0; i < 12; ++i) table += opening + value + closing;
    table += "</tr>";
  };
  row("Date", "      <td valign='middle' align='center' bgcolor='#99CCFF'><b>", "03/07", "</b></td>");
  row("Day", "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>", "Fri", "</b></td>");
  row("Sky&nbsp;", "      <td bgcolor='#FFFFFF'><img border='0' src='file:", Icon("ssunny.gif").c_str(),
      "'></td>");
  row("Sky", kCell, "sunny", "</td>");
  row("Temp", kCell + "<font color='" + temperature_color + "'><b>", "68", "</b></font></td>");
  row("Wind", "      <td valign='middle' align='center' bgcolor='#FFFFFF' class='tinytext'>", "SSW 12",
      "</td>");
  row("Rain", kCell + "<font color='green'>", "-", "</font></td>");
  row("Snow", kCell + "<font color='blue'>", "0.5", "</font></td>");
  return table + "  </table></div>";
}

TEST(HtmlKinds, ExtendedPlanner) {
  const std::string page =
      PlannerHead("Weather Planner Extended",
                  "TD{font-family: Tahoma;font-size: 11px;}.tinytext{font-family: Tahoma;font-size: 10px;}") +
      Band("left' width='540' height='19'", "weeklya.jpg") + ExtendedTable("#FF0000") +
      Band("center' height='19'", "weeklyn.jpg") + ExtendedTable("blue") + "</body></html>";
  const QImage image = ShowKind("extended", page, {604, 415});
  const QPoint day = Find(image, Share("/backgrounds/weeklya.jpg").copy(0, 0, 200, 10));
  const QPoint night = Find(image, Share("/backgrounds/weeklyn.jpg").copy(0, 0, 200, 10));
  EXPECT_EQ(day, QPoint(6, 10));
  EXPECT_EQ(night.x(), 6);
  const QRect red = Extent(image, QColor(255, 0, 0));
  EXPECT_GT(red.width(), 300) << "highs are red, in every column";
  EXPECT_LT(red.bottom(), night.y()) << "and only in the first table";
  EXPECT_GT(Extent(image, QColor(0, 0, 255)).bottom(), night.y());
  EXPECT_NE(Find(image, Share("/icons/ssunny.gif")), QPoint(-1, -1))
      << "a picture without a size has its own";
}

std::string HistoricalPage(int rows) {
  const auto heading = [](const char* width, const char* text) {
    return "<td valign='middle' align='center' width='" + std::string(width) +
           "' bgcolor='#000000'><font color='#FFFFFF'>" + text + "</font></td>\r\n";
  };
  const auto cell = [](const char* width, const char* color, const char* text) {
    return "<td valign='middle' align='center' width='" + std::string(width) + "'><font color='" + color +
           "'>" + text + "</font></td>\r\n";
  };
  std::string page =
      "<html>\r\n<head>\r\n<title>Location</title>\r\n<style type='text/css'>TD {font-family: "
      "Tahoma;font-size: "
      "11px;color: #FFFFFF;}</style>\r\n</head>\r\n<body bgcolor='#000000'>\r\n<table border='1' "
      "cellpadding='0' "
      "cellspacing='0' width='512'>\r\n</table>\r\n<div align='center'>\r\n<table border='1' "
      "bgcolor='#003399' "
      "width='512' cellpadding='0' cellspacing='0'>\r\n<tr>\r\n" +
      heading("80", "Time") + heading("40", "Sky") + heading("190", "Weather") +
      heading("55", "Temp<br>(F)") + heading("55", "Dewp<br>(F)") + heading("55", "Rhum<br>(%)") +
      heading("60", "Wind<br>(mph)") + heading("46", "Vis<br>(mi)") + "</tr>\r\n";
  for (int i = 0; i < rows; ++i) {
    page += "<tr>\r\n" + cell("80", "#FFFF00", "Mar 07 2003 02:00PM") +
            "<td valign='middle' align='center' width='40'><img border='0' src=\"" + Icon("scloudy.gif") +
            "\" width='40' height='30'></td>\r\n" + cell("190", "#FFFFFF", "mostly cloudy") +
            cell("55", "#FFFFFF", "68") + cell("55", "#FFFFFF", "50") + cell("55", "#FFFFFF", "55") +
            cell("60", "#FFFFFF", "SSW 12") + cell("46", "#FFFFFF", "10") + "</tr>\r\n";
  }
  return page + "</table>\r\n</div>\r\n</body>\r\n</html>\r\n";
}

TEST(HtmlKinds, HistoricalConditions) {
  const QImage image = ShowKind("historical", HistoricalPage(48), {604, 415});
  EXPECT_NE(Find(image, Share("/icons/scloudy.gif")), QPoint(-1, -1)) << "a plain path in double quotes";
  const QRect blue = Extent(image, QColor(0x00, 0x33, 0x99));
  EXPECT_NEAR(blue.center().x(), 604 / 2, 8) << "the table is centred";
  EXPECT_LE(blue.width(), 512);
  EXPECT_GT(Count(image, QColor(255, 255, 0)), 50) << "times are yellow";
  EXPECT_GT(Count(image, kWhite), 500);
}

TEST(HtmlKinds, RouteReportWithCellsLeftOpen) {
  const auto cell = [](const char* width, const std::string& value) {
    return "<td valign=\"middle\" align=\"center\" width=\"" + std::string(width) +
           "\" height=\"30\" <font face=\"Arial\" size=\"2\" color=\"#000000\">" + value + "</font></b></td>";
  };
  std::string page =
      "<html><head><title>Location</title><style>TD {font-family: Tahoma;font-size: 11px;color: "
      "#FFFFFF;}</style></head><div><body bgcolor=\"#FFFFFF\"><div align=\"left\"><table border=\"1\" "
      "cellpadding=\"0\" cellspacing=\"0\" width=\"740\"><tr><td bgcolor=\"#FFFFFF\" "
      "align=\"center\">&nbsp;<b><font "
      "face=\"Arial\" size=\"5\" color=\"#000000\">Skyloft RouteScope</font></b></td></tr></table></div><div "
      "align=\"left\"><table border=\"1\" width=\"740\" cellpadding=\"0\" cellspacing=\"0\"><tr>";
  for (const char* heading : {"Location", "Distance (mi)", "Arrival Time", "Sky", "Weather", "Temp (F)"}) {
    page +=
        "<td height=\"30\" bgcolor=\"#000080\" align=\"center\"><b><font face=\"Arial\" size=\"2\" "
        "color=\"#FFFFFF\">" +
        std::string(heading) + "</font></b></td>";
  }
  page += "</tr><tr>" + cell("200", "Lawrence, KS") + cell("60", "69") + cell("100", "2:05 pm Fri") +
          cell("40", "<img src=\"" + Icon("smodsnow.gif") + "\" width=\"40\" height=\"30\">") +
          cell("100", "snow") + cell("40", "28") + "</tr></table></div></body></html>";
  const QImage image = ShowKind("route", page, {760, 300});
  const QRect heading = Extent(image, QColor(0, 0, 0x80));
  EXPECT_GT(heading.width(), 700);
  EXPECT_GE(heading.height(), 28);
  EXPECT_NE(Find(image, Share("/icons/smodsnow.gif")), QPoint(-1, -1));
  const QRect below(heading.left(), heading.bottom() + 2, 200, 28);
  EXPECT_GT(Count(image, kBlack, below), 40) << "the text of an open cell is readable";
}

std::string TickerPage(const std::string& title, const std::string& rows) {
  return "<html><head><meta http-equiv='Content-Language' content='en-us'><meta http-equiv='Content-Type' "
         "content='text/html; charset=windows-1252'><title>" +
         title +
         "</title><style>body { overflow:hidden; } TD {font-family: Tahoma;font-size: "
         "11px;}</style></head><body "
         "bgcolor='#000000' topmargin='0' leftmargin='0'><div align='left'><table border='0' height='35' "
         "cellspacing='1'>" +
         rows + "</table></div></body></html>";
}

std::string Bold(const char* color, const char* text) {
  return "<td valign='middle' align='center'><b><font color='" + std::string(color) + "'>" + text +
         "</font></b></td><td width='10' rowspan='2'></td>";
}

TEST(HtmlKinds, TickerBarOfTwoRowsFitsItsThirtyFivePixels) {
  const std::string spacer = "<td width='10' valign='middle' align='center' rowspan='2'></td>";
  const std::string icon =
      "<td align='center' rowspan='2' valign='middle'><img border='0' src='file:" + Icon("ststorms.gif") +
      "' width='40' height='30'></td>";
  const std::string odd = "<td width='3 align='center' rowspan='2' valign='middle'></td>";
  const std::string page = TickerPage(
      "CurrentWeatherTicker", "<tr>" + spacer + Bold("#99CCFF", "Current Conditions") + icon + odd +
                                  Bold("#99CCFF", "Temp") + Bold("#99CCFF", "Wspd") + "</tr><tr>" +
                                  "<td><b><font color='#FFFFFF'>Lawrence, KS</font></b></td><td><b><font "
                                  "color='#FFFFFF'>68 F</font></b></td><td><b><font color='#FFFFFF'>12 "
                                  "mph</font></b></td></tr>");
  const QImage image = ShowKind("ticker", page, {800, 35});
  const QPoint picture = Find(image, Share("/icons/ststorms.gif"));
  EXPECT_NE(picture, QPoint(-1, -1)) << "the whole picture is inside the bar";
  const QRect headings = Extent(image, kLabel);
  const QRect values = Extent(image, kWhite);
  EXPECT_LT(headings.top(), 14);
  EXPECT_GT(values.bottom(), 18);
  EXPECT_LE(values.bottom(), 34);
  EXPECT_EQ(image.pixelColor(790, 17), kBlack);
}

TEST(HtmlKinds, BlankTickerPageIsBlackToItsEdges) {
  const QImage image = ShowKind("blank",
                                "<html><body bgcolor='000000' topmargin='0' leftmargin='0' marginheight='0' "
                                "marginwidth='0'></body></html>",
                                {800, 35});
  EXPECT_EQ(Count(image, kBlack), 800 * 35);
}

TEST(HtmlKinds, ScrollPageFillsTheBarWithItsColourAndItsText) {
  Application();
  const std::string page =
      "<html><head><title>Skyloft Ticker Scroll</title><style>body { overflow:hidden; }</style><bgsound "
      "src='file:'></head><body bgcolor='FF0000' topmargin='0' leftmargin='0' marginheight='0' "
      "marginwidth='0'><div align='center'><table border=0 width='100%'><tr><td><applet "
      "archive='HorizontalPro.jar' "
      "code='HorizontalPro.class' width='800' height='35' viewastext><param name='text'       "
      "value='SIMULATED. Tornado "
      "warning'><param name='speed'      value='10'><param name='bgColor'    value='FF0000'><param "
      "name='fontColor'  "
      "value='FFFFFF'><param name='fontSize'   value='14'></applet></td></tr></table></div></body></html>";
  HtmlView view(ShareServices());
  view.resize(800, 35);
  view.show();
  view.SetDocument(page);
  const QImage image = Grab(view);
  EXPECT_GT(Count(image, QColor(255, 0, 0)), 800 * 35 * 9 / 10);
}

}  // namespace
}  // namespace skyloft::testing
