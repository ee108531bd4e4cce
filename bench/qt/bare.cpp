#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "bench/qt/Launch.h"

// The least that a program with a window can be: one label. Tells when it was painted and, after a
// second, how much memory it holds.

namespace {

/// A label that tells, after its first painting is done, how long the process has lived.
class FirstLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (!blnTold_) {
      blnTold_ = true;
      QTimer::singleShot(0, this, [] { prcTold(); });
    }
  }

 private:
  static void prcTold() {
    std::printf("bare_start %.4f\n", bench::fncSinceStart());
    if (QApplication::arguments().size() < 2) {
      QApplication::quit();
      return;
    }
    QTimer::singleShot(1000, qApp, [] {
      std::printf("bare_memory %.4f\n", bench::fncResident());
      QApplication::quit();
    });
  }

  bool blnTold_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle(QStringLiteral("Bare"));
  QVBoxLayout rows(&window);
  FirstLabel label(QStringLiteral("One label"), &window);
  rows.addWidget(&label);
  window.show();
  return QApplication::exec();
}
