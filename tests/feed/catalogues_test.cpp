#include "feed/catalogues.h"

#include "feed/hosts.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

std::string Product(const std::string& name, const std::string& category) {
  return Element("id", "2") + Element("product", name) + Element("category", category) +
         Element("code", "0") + Element("period", "1") + Element("file", "f") + Element("type", "gif");
}

class CataloguesTest : public Station {
 protected:
  CataloguesTest() { HostTable.productserver = "product.skyloft.example/"; }

  static void Load(const std::string& elements) {
    Doubles.replies.clear();
    Doubles.Reply("products.", Reply(elements));
    GetProductData();
  }
  static std::vector<std::string> Shown() { return MainForm.ProductSelection.Items(); }
};

TEST_F(CataloguesTest, TheirNamesBearTheHourOfTheModelRunAndAbove12It18) {
  const std::pair<const char*, const char*> cases[] = {
      {"Mar 07 2003 06:00AM", "06"}, {"Mar 07 2003 12:00PM", "12"},
      {"Mar 07 2003 06:00PM", "18"}, {"Mar 07 2003 01:00PM", "18"},
      {"Mar 07 2003 11:00PM", "18"}, {"Mar 07 2003 07:00AM", "07"},
      {"Mar 07 2003 12:00AM", "00"}, {"", ""},
  };
  for (const auto& [stamp, hour] : cases) {
    Doubles.requests.clear();
    Settings.ModelServer = stamp;
    GetSectorData();
    GetProductData();
    const std::string start = "product.skyloft.example/";
    EXPECT_EQ(Doubles.requests, (std::vector<std::string>{start + "sectors." + hour + "z.sys",
                                                          start + "products." + hour + "z.sys.4"}));
  }
}

TEST_F(CataloguesTest, AFailedFetchLeavesTheFormerTextAndRecords) {
  Load(Element("menu", "One") + Product("First", "0"));
  Doubles.Reply("sectors.", "the sectors");
  GetSectorData();
  Doubles.replies.clear();
  GetSectorData();
  GetProductData();
  EXPECT_EQ(Catalogues.SectorCatalogue, "the sectors");
  EXPECT_EQ(Catalogues.ProductRecord.last, 0);
  GetAvailableCategories();
  EXPECT_EQ(MainForm.CategorySelection.Items(), std::vector<std::string>{"One"});
}

TEST_F(CataloguesTest, ATextThatIsNotXmlHasNoRecordsAndEmptiesTheLists) {
  Load(Element("menu", "One") + Product("First", "0"));
  GetAvailableCategories();
  Doubles.Reply("products.", "<r><menu>cut off");
  GetProductData();
  GetAvailableCategories();
  GetAvailableProducts(0);
  EXPECT_EQ(MainForm.CategorySelection.Count(), 0);
  EXPECT_EQ(MainForm.ProductSelection.Count(), 0);
}

TEST_F(CataloguesTest, CategoriesAreListedInOrderTheFirstSelectedAndTheWholeFilesValuesKept) {
  int selections = 0;
  MainForm.CategorySelection.Click = [&] { ++selections; };
  MainForm.CategorySelection.AddItem("former");
  Load(Element("model", "12z") + Element("modelx", "00z") + Element("height", "480") +
       Element("width", "640") + Element("model", "late") + Element("menu", "Planners") +
       Element("menu", "Maps") + Element("menu", ""));
  GetAvailableCategories();
  EXPECT_EQ(MainForm.CategorySelection.Items(), (std::vector<std::string>{"Planners", "Maps", ""}));
  EXPECT_EQ(MainForm.CategorySelection.ListIndex(), 0);
  EXPECT_EQ(selections, 1);
  EXPECT_EQ(Catalogues.ModelRun, "12z") << "the first of each counts";
  EXPECT_EQ(Catalogues.ModelRunExtended, "00z");
  EXPECT_EQ(Catalogues.ImageHeight + Catalogues.ImageWidth, "480640");
  Load(Element("menu", "One"));
  GetAvailableCategories();
  EXPECT_EQ(Catalogues.ModelRun, "12z") << "a file without it leaves it";
}

TEST_F(CataloguesTest, ThreeCategoriesAreKnownByNameAndZeroStandsForNone) {
  Load(Element("menu", "A") + Element("menu", "Monthly Newsletter") + Element("menu", "Share Skyloft") +
       Element("menu", "Technical Support"));
  GetAvailableCategories();
  EXPECT_EQ(Catalogues.NewsletterCategoryIndex, 1);
  EXPECT_EQ(Catalogues.ShareCategoryIndex, 2);
  EXPECT_EQ(Catalogues.SupportCategoryIndex, 3);
  Load(Element("menu", "A") + Element("menu", "technical support"));
  GetAvailableCategories();
  EXPECT_EQ(Catalogues.NewsletterCategoryIndex, 0);
  EXPECT_EQ(Catalogues.ShareCategoryIndex, 0);
  EXPECT_EQ(Catalogues.SupportCategoryIndex, 0) << "the text is exact";
}

TEST_F(CataloguesTest, AProductsNumberIsItsPlaceInTheCatalogueNotInTheList) {
  std::string elements;
  for (int i = 0; i < 12; ++i) {
    elements += Product("P" + std::to_string(i), i == 1 || i == 5 || i == 9 ? "3" : "0");
  }
  Load(elements);
  GetAvailableProducts(3);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"002 P1", "006 P5", "010 P9"}));
  EXPECT_EQ(MainForm.ProductSelection.ListIndex(), 0);
  EXPECT_EQ(Catalogues.ProductMap[0], 1);
  EXPECT_EQ(Catalogues.ProductMap[1], 5);
  EXPECT_EQ(Catalogues.ProductMap[2], 9);
}

TEST_F(CataloguesTest, NumbersHaveThreeDigits) {
  std::string elements;
  for (int i = 0; i < 1000; ++i) elements += Product("P", "1");
  Load(elements);
  GetAvailableProducts(1);
  for (const auto& [entry, text] :
       {std::pair{0, "001 P"}, {8, "009 P"}, {9, "010 P"}, {98, "099 P"}, {99, "100 P"}, {999, "1000 P"}}) {
    EXPECT_EQ(Shown()[static_cast<size_t>(entry)], text);
  }
}

TEST_F(CataloguesTest, ACategoryIsItsNumberLeniently) {
  Load(Product("A", " 2 ") + Product("B", "2nd") + Product("C", "") + Product("D", "20"));
  GetAvailableProducts(2);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"001 A", "002 B"}));
  GetAvailableProducts(0);
  EXPECT_EQ(Shown(), std::vector<std::string>{"003 C"});
}

TEST_F(CataloguesTest, MoreThan1001ProductsFillTheListAndSelectNone) {
  std::string elements;
  for (int i = 0; i < 1002; ++i) elements += Product("P", "1");
  Load(elements);
  GetAvailableProducts(1);
  EXPECT_EQ(MainForm.ProductSelection.Count(), 1001);
  EXPECT_EQ(MainForm.ProductSelection.ListIndex(), -1);
}

TEST_F(CataloguesTest, AHoleInTheCatalogueEndsTheListThere) {
  Load(Product("A", "1") + Element("product", "B") + Product("C", "1"));  // three products, two categories
  GetAvailableProducts(1);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"001 A", "002 B"})) << "fields go by their own order";
  EXPECT_EQ(MainForm.ProductSelection.ListIndex(), -1);
}

std::string Sector(const std::string& name, int xmin, int xmax, int ymin, int ymax) {
  return Element("sector", name) + Element("xmin", std::to_string(xmin)) +
         Element("xmax", std::to_string(xmax)) + Element("ymin", std::to_string(ymin)) +
         Element("ymax", std::to_string(ymax));
}

// A product of the family "2", sectors of the families "2" and "3".
class SectorChoice : public CataloguesTest {
 protected:
  SectorChoice() {
    Load(Product("Wind", "0"));
    GetAvailableProducts(0);
    Doubles.Reply("sectors.", Reply(Sector("200", -5000, 5000, -4000, 9000) +  // every point lies in it
                                    Sector("3x", 0, 100, 0, 100) + Sector("2a", 0, 100, 0, 100) +
                                    Sector("2b", 60, 140, 0, 100) + Sector("2c", 60, 140, 0, 100)));
    GetSectorData();
    MainForm.NationalButton.Enabled = true;
    Catalogues.SectorID = "former";
    Catalogues.SectorIDPrevious = "before";
  }
  static std::string Choose(double x, double y) {
    GetSectorID(0, x, y);
    return Catalogues.SectorID;
  }
};

TEST_F(SectorChoice, TheNearestCentreOfTheFamilyWinsAndOfEqualsTheFirst) {
  const struct {
    double x, y;
    const char* sector;
  } cases[] = {
      {50, 50, "2a"},    // in 3x too, which is of another family
      {74, 50, "2a"},    // 24 from 50, 26 from 100
      {76, 50, "2b"},    // and 2c has the same centre
      {140, 100, "2b"},  // on the corner
      {0, 0, "2a"},     {100, 100, "2b"}, {300, 50, "200"},
  };
  for (const auto& c : cases) EXPECT_EQ(Choose(c.x, c.y), c.sector) << c.x;
  Choose(76, 50);
  EXPECT_EQ(Catalogues.SectorXMin, 60);
  EXPECT_EQ(Catalogues.SectorXMax, 140);
  EXPECT_EQ(Catalogues.SectorYMin, 0);
  EXPECT_EQ(Catalogues.SectorYMax, 100);
}

TEST_F(SectorChoice, TheSectorBeforeMayBeOneThatWasOnlyPassedOver) {
  Choose(90, 50);  // 200, then 2a, then 2b
  EXPECT_EQ(Catalogues.SectorID, "2b");
  EXPECT_EQ(Catalogues.SectorIDPrevious, "2a");
}

TEST_F(SectorChoice, APointInNoRectangleKeepsTheNameAndTakesTheEdgesOfTheFirstSector) {
  EXPECT_EQ(Choose(9000, 9000), "former");
  EXPECT_EQ(Catalogues.SectorIDPrevious, "before");
  EXPECT_EQ(Catalogues.SectorXMin, -5000);
  EXPECT_EQ(Catalogues.SectorYMax, 9000);
}

TEST_F(SectorChoice, TheNationalViewIsTwoHundredWithTheEdgesOfTheFirstSectorWhicheverThatIs) {
  Doubles.Reply("sectors.", Reply(Sector("3x", -7, 7, -7, 7) + Sector("200", -5000, 5000, -4000, 9000)));
  GetSectorData();
  MainForm.NationalButton.Enabled = false;
  EXPECT_EQ(Choose(50, 50), "200");
  EXPECT_EQ(Catalogues.SectorIDPrevious, "before") << "the search is not run";
  EXPECT_EQ(Catalogues.SectorXMin, -7);
}

TEST_F(SectorChoice, RadarAndAPlannerThatNoProductHasKeepTheirSector) {
  for (const char* name : {"Reflectivity", "Hourly Weather Planner"}) {
    Load(Product(name, "0"));
    GetAvailableProducts(0);
    EXPECT_EQ(Choose(50, 50), "former") << name;
    EXPECT_EQ(Catalogues.SectorXMax, 0);
  }
}

TEST_F(SectorChoice, TheProductGivenIsNotRead) {
  GetSectorID(77, 50, 50);
  EXPECT_EQ(Catalogues.SectorID, "2a");
}

}  // namespace
}  // namespace skyloft
