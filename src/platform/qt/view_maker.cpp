#include "platform/qt/view_maker.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "platform/qt/control_look.h"
#include "platform/qt/dialog_keys.h"
#include "platform/qt/focus_ring.h"
#include "platform/qt/form_window.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/page_services.h"
#include "platform/qt/pictures_qt.h"
#include "platform/qt/text_qt.h"
#include "platform/qt/widgets.h"
#include "platform/qt/zoom_view.h"

namespace skyloft {

// One procedure a kind of control: makes the widget, ties its signals to the model's acts, and tells how to
// bring it up to the model.
class ViewMaker : public ControlVisitor {
 public:
  explicit ViewMaker(FormWindow& window) : window_(window) {}

  void Visit(Label& model) override {
    auto* label = new ClickLabel(ParentOf(model));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(HasSeveralLines(model));
    label->setAlignment(AlignmentOf(model));
    MakeClickable(model, *label);
    const Control* field = FieldOf(model);
    const QChar letter = window_.LetterOf(model);
    if (field && !letter.isNull()) waiting_[field] = label;
    Keep(model, label, [&model, label, letter] {
      const QString caption = ToQt(model.Caption);
      label->setText(letter.isNull() ? Fitting(*label, caption, model.Width) : WithMnemonic(caption, letter));
      label->setAccessibleName(label->text() == caption ? QString() : caption);
    });
  }

  void Visit(TextBox& model) override {
    auto* line = new QLineEdit(ParentOf(model));
    QObject::connect(line, &QLineEdit::textEdited, line,
                     [&model](const QString& text) { Raise([&] { model.Enter(FromQt(text)); }); });
    Keep(model, line, [&model, line] {
      line->setReadOnly(model.Locked);
      if (model.Locked) line->setFocusPolicy(Qt::NoFocus);
      if (FromQt(line->text()) != model.Text.Get()) line->setText(ToQt(model.Text));
    });
  }

  void Visit(Button& model) override {
    auto* button = new QPushButton(ParentOf(model));
    QObject::connect(button, &QPushButton::clicked, button, [&model] { Raise([&] { model.Press(); }); });
    const QChar letter = window_.LetterOf(model);
    button->setDefault(model.Default);
    Keep(model, button,
         [&model, button, letter] { button->setText(WithMnemonic(ToQt(model.Caption), letter)); });
  }

  void Visit(CheckBox& model) override { MakeCheck(model, new QCheckBox(ParentOf(model))); }

  void Visit(OptionButton& model) override {
    auto* option = new QRadioButton(ParentOf(model));
    option->setAutoExclusive(false);
    MakeCheck(model, option);
  }

  void Visit(ListControl& model) override {
    auto* combo = new ListBox(ParentOf(model));
    QObject::connect(combo, &QComboBox::activated, combo,
                     [&model](int index) { Raise([&] { model.Select(index); }); });
    Keep(model, combo, [&model, combo] { ShowList(model, *combo); });
  }

  void Visit(Picture& model) override {
    auto* label = new ClickLabel(ParentOf(model));
    MakeClickable(model, *label);
    Keep(model, label, [&model, label] { label->SetPicture(LoadedPicture(model.PicturePath())); });
  }

  void Visit(ImageButton& model) override {
    auto* button = new PictureButton(ParentOf(model));
    if (model.Click || model.MouseDown) {
      button->setCursor(Qt::PointingHandCursor);
    } else {
      button->setFocusPolicy(Qt::NoFocus);  // it shows something
    }
    window_.ring_->Watch(button);
    QObject::connect(button, &QAbstractButton::pressed, button, [&model] { Raise([&] { model.Down(); }); });
    QObject::connect(button, &QAbstractButton::released, button, [&model] { Raise([&] { model.Up(); }); });
    QObject::connect(button, &QAbstractButton::clicked, button, [&model] { Raise([&] { model.Press(); }); });
    Keep(model, button, [&model, button] {
      PictureFrames frames = LoadedFrames(model.PicturePath());
      if (!model.Click) frames.images.resize(std::min<qsizetype>(frames.images.size(), 1));  // nothing calls
      button->SetFrames(frames);
    });
  }

  void Visit(ImageView& model) override {
    auto* view = new ZoomView(ParentOf(model));
    window_.ring_->Watch(view);
    view->pressed = [&model](const MousePress& press) { Raise([&] { Fire(model.MouseDown, press); }); };
    view->dragged = [&model](QPoint from, QPoint to) {
      Raise([&] { model.Drag(from.x(), from.y(), to.x(), to.y()); });
    };
    Keep(model, view, [&model, view] {
      view->SetView(LoadedPicture(model.PicturePath()), model.Zoom, QPoint(model.ViewX, model.ViewY));
      view->SetOverlay(model.Overlay);
      view->SetRectangleTool(model.MouseTool == kRectangleTool);
    });
  }

  void Visit(Mark& model) override {
    auto* dot = new MarkDot(ParentOf(model));
    dot->pressed = [&model](const MousePress& press) { Raise([&] { Fire(model.MouseDown, press); }); };
    Keep(model, dot, [&model, dot] { dot->SetColor(ColorOf(model.Color)); });
  }

  void Visit(HtmlDisplay& model) override {
    auto* page = new HtmlView(PageServices(), ParentOf(model));
    page->clicked = [&model] { Raise([&] { model.Press(); }); };
    if (model.SecondaryClick) {
      page->secondary_clicked = [&model] { Raise([&] { Fire(model.SecondaryClick); }); };
    }
    window_.ring_->Watch(page);
    window_.pages_.push_back(page);
    auto shown = std::make_shared<std::pair<std::string, int>>("", 0);  // document and visit
    Keep(model, page, [&model, page, shown] {
      const std::pair<std::string, int> wanted(model.Document.Get(), model.Visits());
      if (*shown == wanted) return;
      *shown = wanted;
      if (!wanted.first.empty() || model.Address().empty()) {
        page->SetDocument(wanted.first);
      } else {
        FetchPage(model.Address(), [page, shown, wanted](const std::string& document) {
          if (*shown == wanted) page->SetDocument(document);
        });
      }
    });
  }

  void Visit(ProgressBar& model) override {
    auto* bar = new PositionBar(ParentOf(model));
    Keep(model, bar,
         [&model, bar] { bar->SetPosition(model.Min, model.Max, model.Value, ColorOf(model.Color)); });
  }

  void Visit(Frame& model) override {
    auto* frame = new QGroupBox(ParentOf(model));
    frame->hide();
    Keep(model, frame, [this_window = &window_, &model, frame] {
      frame->setTitle(ToQt(model.Caption));
      if (model.Visible && frame->isHidden()) this_window->FocusLater(*frame);
    });
  }

  void Visit(TabStrip& model) override {
    auto* tabs = new QTabBar(ParentOf(model));
    for (const std::string& tab : model.Tabs) tabs->addTab(ToQt(tab));
    QObject::connect(tabs, &QTabBar::tabBarClicked, tabs,
                     [&model](int tab) { Raise([&] { model.Select(tab + 1); }); });
    QObject::connect(tabs, &QTabBar::currentChanged, tabs, [&model](int tab) {
      if (tab + 1 != model.Selected()) Raise([&] { model.Select(tab + 1); });  // by an arrow
    });
    Keep(model, tabs, [&model, tabs] { tabs->setCurrentIndex(model.Selected() - 1); });
  }

 private:
  QWidget* ParentOf(const Control& model) const {
    const auto container = window_.views_.find(model.Container());
    return container == window_.views_.end() ? &window_ : container->second.widget;
  }

  template <class Box>
  void MakeCheck(CheckBox& model, Box* box) {
    QObject::connect(box, &Box::clicked, box,
                     [&model](bool checked) { Raise([&] { model.Check(checked); }); });
    const QChar letter = window_.LetterOf(model);
    Keep(model, box, [&model, box, letter] {
      box->setText(WithMnemonic(ToQt(model.Caption), letter));
      box->setChecked(model.Checked);
    });
  }

  static void ShowList(const ListControl& model, ListBox& combo) {
    QStringList items;
    for (const std::string& item : model.Items()) items << ToQt(item);
    QStringList shown;
    for (int i = 0; i < combo.count(); ++i) shown << combo.itemText(i);
    if (items != shown) {
      combo.clear();
      combo.addItems(items);
    }
    combo.setCurrentIndex(model.ListIndex());
  }

  template <class Model>
  void MakeClickable(Model& model, ClickLabel& label) {
    if (!model.Click) return;
    label.MakeClickable([&model] { Raise([&] { model.Press(); }); });
    window_.ring_->Watch(&label);
  }

  // In a window without a title bar the letter opens the list as well.
  void NameField(ClickLabel& label, QWidget* field) {
    label.setBuddy(field);
    auto* list = dynamic_cast<ListBox*>(field);
    if (list && !window_.form_.Titled()) label.reached = [list] { list->showPopup(); };
  }

  // What all widgets have in common, and `show` on top of it.
  void Keep(const Control& model, QWidget* widget, std::function<void()> show) {
    widget->setObjectName(ToQt(model.Name()));
    widget->setAccessibleName(SpokenName(model));
    if (const auto label = waiting_.find(&model); label != waiting_.end()) NameField(*label->second, widget);
    window_.views_[&model] = {widget, [&model, widget, show = std::move(show)] {
                                widget->setGeometry(model.Left, model.Top, model.Width, model.Height);
                                widget->setEnabled(model.Enabled);
                                widget->setToolTip(TipOf(model));
                                show();
                                widget->setVisible(model.Visible);
                              }};
  }

  FormWindow& window_;
  std::unordered_map<const Control*, ClickLabel*>
      waiting_;  // labels by the field they name, which is made next
};

void MakeViews(FormWindow& window, const std::vector<Control*>& controls) {
  ViewMaker maker(window);
  for (Control* control : controls) {
    control->Accept(maker);
    window.ShowControl(*control);
  }
}

}  // namespace skyloft
