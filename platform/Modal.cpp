#include "platform/Modal.h"

#include "platform/platform.h"

void prcShowModal(Window& window) {
  prcShow(window);
  prcToFront(window);
  platform::RunModal(window);
}
