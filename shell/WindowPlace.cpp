#include "shell/WindowPlace.h"

#include "platform/Places.h"
#include "shell/SettingsStore.h"

void prcReadPlace(Window& form, const std::string& strSection) {
  form.Top = fncGetSetting(strSection, "Top");
  form.Left = fncGetSetting(strSection, "Left");
  prcMendPlace(form);
}

void prcWritePlace(const Window& form, const std::string& strSection) {
  prcWriteSetting(strSection, "Top", form.Top);
  prcWriteSetting(strSection, "Left", form.Left);
}
