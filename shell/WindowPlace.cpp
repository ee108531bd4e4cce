#include "shell/WindowPlace.h"

#include <array>
#include <span>

#include "platform/Places.h"
#include "shell/SettingsStore.h"

namespace {

struct PlaceField {
  const char* Key;
  double Window::*Field;
};

std::span<const PlaceField> fncFields(PlaceKeys keys) {
  static constexpr std::array<PlaceField, 4> fields{{{keyTop, &Window::Top},
                                                     {keyLeft, &Window::Left},
                                                     {keyHeight, &Window::Height},
                                                     {keyWidth, &Window::Width}}};
  return std::span(fields).first(keys == PlaceKeys::Whole ? 4 : 2);
}

}  // namespace

void prcReadPlace(Window& form, const std::string& strSection, PlaceKeys keys) {
  for (const PlaceField& field : fncFields(keys)) {
    form.*field.Field = fncGetSetting(strSection, field.Key);
  }
  prcMendPlace(form);
}

void prcWritePlace(const Window& form, const std::string& strSection, PlaceKeys keys) {
  for (const PlaceField& field : fncFields(keys)) {
    prcWriteSetting(strSection, field.Key, form.*field.Field);
  }
}
