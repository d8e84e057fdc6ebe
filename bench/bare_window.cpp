// The least that a program on Qt can be: what the figures of the start stand on.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setFixedSize(800, 590);
  window.show();
  return QApplication::exec();
}
