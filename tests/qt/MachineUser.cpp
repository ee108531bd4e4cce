#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <memory>

#include "judges/Adapter.h"
#include "platform/Procedure.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/Sync.h"

// As much of the user as the tests of the real machine need: one who waits in real time, does what
// the test says while a dialog is open, and closes it.

namespace {

std::deque<std::function<void()>> actModal;
std::vector<user::Box> boxShown;
std::unique_ptr<QTimer> tmrModal;

/// Serves an open message box or dialog: what the test says first, then it is closed.
void prcServeModal() {
  if (QApplication::activeModalWidget() == nullptr || qt::fncEnded()) {
    return;
  }
  tmrModal->stop();
  if (!actModal.empty()) {
    const std::function<void()> act = std::move(actModal.front());
    actModal.pop_front();
    act();
  }
  tmrModal->start(1);
  QWidget* open = QApplication::activeModalWidget();
  if (auto* box = qobject_cast<QMessageBox*>(open); box != nullptr) {
    boxShown.emplace_back().Text = box->text().toStdString();
    box->accept();
  } else if (open != nullptr) {
    open->close();
  }
}

}  // namespace

namespace user {

void Reset(const std::string& /*folder*/) {
  qt::prcForgetEnd();
  while (!fncWindows().empty()) {
    prcForgetWindow(*fncWindows().back());
  }
  qt::prcSyncAll();
  actModal.clear();
  boxShown.clear();
  tmrModal = std::make_unique<QTimer>();
  QObject::connect(tmrModal.get(), &QTimer::timeout, prcServeModal);
  tmrModal->start(1);
}

void Settle() {
  qt::prcSyncAll();
  platform::WaitEvents(2);
}

void WhileModal(std::function<void()> act) { actModal.push_back(std::move(act)); }
const std::vector<Box>& Boxes() { return boxShown; }

}  // namespace user
