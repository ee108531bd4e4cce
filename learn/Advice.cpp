#include "learn/Advice.h"

#include <array>
#include <cstddef>

#include "platform/Texts.h"

const char* const strLearnDefault =
    "This area will contain\r\nthe card values required\r\nfor wins, ties, and loses.";

namespace {

/// Up to three lines of a panel; a third line of nullptr is not there at all.
struct Lines {
  const char* First;
  const char* Second;
  const char* Third;
};

std::string fncJoin(const Lines& lines) {
  std::string text = std::string(lines.First) + strLineBreak + lines.Second;
  if (lines.Third != nullptr) {
    text += std::string(strLineBreak) + lines.Third;
  }
  return text;
}

std::string fncJoin(const std::string& first, const std::string& second) {
  return first + strLineBreak + second;
}

std::string fncJoin(const std::string& first, const std::string& second, const std::string& third) {
  return fncJoin(fncJoin(first, second), third);
}

constexpr const char* strCardTotal = "(2 card total)";

constexpr std::array<Lines, 6> pressureFrom4{{
    {"", "At least 5 would be good", strCardTotal},
    {"", "At least 6 would be good", strCardTotal},
    {"7, 8, 9 to WIN", "6 to TIE", strCardTotal},
    {"8, 9 to WIN", "7 to TIE, 6 to LOSE", strCardTotal},
    {"9 to WIN", "8 to TIE, other to LOSE", strCardTotal},
    {"9 to TIE, other to LOSE", "PRESSURE !", strCardTotal},
}};

// The Player's third card has its wording from how the Banker would then draw, which no short rule
// gives. Rows by the Banker's total 3..7, columns by the Player's 0..5.
constexpr std::array<std::array<Lines, 6>, 5> playerThirdFrom3{{
    {{
        {"8 to WIN", "6, 7, 9 is good", nullptr},
        {"8 to WIN", "5, 6, 7 is good", nullptr},
        {"4, 5, 6, 7 is good", "8 to LOSE", nullptr},
        {"3, 4, 5, 6 is good", "8 to LOSE", nullptr},
        {"2, 3, 4, 5 is good", "8 to LOSE", nullptr},
        {"1, 2, 3, 4 is good", "8 to TIE", nullptr},
    }},
    {{
        {"8, 9 to WIN", "5, 6, 7 is good", "1, 10, Picture to LOSE"},
        {"8 to WIN", "4, 5, 6, 7 is good", "1, 9, 10, Picture to LOSE"},
        {"3, 4, 5, 6, 7 is good", "1, 8, 9, 10, Picture to LOSE", nullptr},
        {"2, 3, 4, 5, 6 is good", "1 to TIE", "8, 9, 10, Picture to LOSE"},
        {"1 to WIN; 2, 3, 4, 5 is good", "10, Picture to TIE", "8, 9 to LOSE"},
        {"1, 10, Picture to WIN", "2, 3, 4 is good", "9 to TIE; 8 to LOSE"},
    }},
    {{
        {"8, 9 to WIN", "5, 6, 7 is good", "1, 2, 3, 10, Picture to LOSE"},
        {"8 to WIN", "4, 5, 6, 7 is good", "1, 2, 3, 9, 10, Picture to LOSE"},
        {"4, 5, 6, 7 is good", "3 to TIE", "1, 2, 8, 9, 10, Picture to LOSE"},
        {"3 to WIN", "4, 5, 6 is good; 2 to TIE", "1, 8, 9, 10, Picture to LOSE"},
        {"2, 3 to WIN", "4, 5 is good; 1 to TIE", "8, 9, 10, Picture to LOSE"},
        {"1, 2, 3 to WIN", "4 is good; 10, Picture to TIE", "8, 9 to LOSE"},
    }},
    {{
        {"8, 9 to WIN", "6, 7 is good", "1, 2, 3, 4, 5, 10, Picture to LOSE"},
        {"8 to WIN", "6, 7 is good; 5 to TIE", "1, 2, 3, 4, 9, 10, Picture to LOSE"},
        {"5 to WIN", "6, 7 is good; 4 to TIE", "1, 2, 3, 8, 9, 10, Picture to LOSE"},
        {"4, 5 to WIN", "6 is good; 3 to TIE", "1, 2, 8, 9, 10, Picture to LOSE"},
        {"3, 4, 5 to WIN", "2 to TIE", "1, 8, 9, 10, Picture to LOSE"},
        {"2, 3, 4 to WIN", "1 to TIE", "8, 9, 10, Picture to LOSE"},
    }},
    {{
        {"8, 9 to WIN", "7 to TIE", "1, 2, 3, 4, 5, 6, 10, Picture to LOSE"},
        {"7, 8 to WIN", "6 to TIE", "1, 2, 3, 4, 5, 9, 10, Picture to LOSE"},
        {"6, 7 to WIN", "5 to TIE", "1, 2, 3, 4, 8, 9, 10, Picture to LOSE"},
        {"5, 6 to WIN", "4 to TIE", "1, 2, 3, 7, 8, 9, 10, Picture to LOSE"},
        {"4, 5 to WIN", "3 to TIE", "1, 2, 6, 7, 8, 9, 10, Picture to LOSE"},
        {"3, 4 to WIN", "2 to TIE", "1, 5, 6, 7, 8, 9, 10, Picture to LOSE"},
    }},
}};

/// A card by the ones digit of a number; the digit 0 is a ten or a picture.
std::string fncCard(int number, const char* ten = "10, Picture") {
  const int digit = number % 10;
  return digit == 0 ? std::string(ten) : std::to_string(digit);
}

/// Cards in a list, each with its comma behind.
std::string fncCards(int from, int to) {
  std::string list;
  for (int number = from; number <= to; ++number) {
    list += fncCard(number, "10 , Picture") + ", ";
  }
  return list;
}

/// The best cards, from a number downwards. A ten closes its list and has no comma behind.
std::string fncBestCards(int from, int count) {
  std::string list;
  for (int number = from; number > from - count; --number) {
    list += fncCard(number) + (number % 10 == 0 ? "" : ", ");
  }
  return list;
}

/// The two cards that make an 8 or a 9 of a card worth v.
std::string fncNaturalCards(int v) {
  if (v > 7) {
    return v == 8 ? "1, 10, Picture" : "9, 10, Picture";
  }
  return std::to_string(8 - v) + ", " + std::to_string(9 - v);
}

/// What beats a 6 or a 7: the count best cards. With an 8 or a 9 in hand these are the natural's.
std::string fncWinningCards(int v, int count) {
  return (v > 7 ? fncNaturalCards(v) : fncBestCards(29 - v, count)) + " to WIN";
}

std::string fncTieCard(int number) { return fncCard(number) + " to TIE"; }

std::string fncAgainst8(int v) {
  if (v == 9) {
    return fncJoin({"10, Picture to WIN", "9 to TIE", "1, 2, 3, 4, 5, 6, 7, 8 to LOSE"});
  }
  return fncJoin(std::to_string(9 - v) + " to WIN", fncTieCard(28 - v),
                 fncCards(30 - v, 37 - v) + " to LOSE");
}

/// Face values above 9 count nothing.
int fncWorth(Integer v) { return v > 9 ? 0 : int{v}; }

enum class ThirdCard { Absent, FaceDown, Revealed, BackAlone };

ThirdCard fncThirdCard(const TableView& view, int Index) {
  if (view.Face[Index]) {
    return view.Revealed[Index] ? ThirdCard::Revealed : ThirdCard::FaceDown;
  }
  return view.Revealed[Index] ? ThirdCard::Absent : ThirdCard::BackAlone;
}

/// The table as it looks from the card under the mouse.
struct Outlook {
  Integer Index;
  bool blnPair;          ///< It is one of the first two cards of its side.
  bool blnHidden;        ///< It lies under its back.
  int intOwn, intOther;  ///< Cards of its side's pair and of the other pair that are revealed.
  ThirdCard OtherThird;  ///< The other side's third card.
};

Outlook fncOutlook(Integer Index, const TableView& view) {
  const int own = Index < 3 ? 0 : 3;
  const int other = 3 - own;
  return {Index,
          Index != own + 2,
          !view.Revealed[Index],
          view.Revealed[own] + view.Revealed[own + 1],
          view.Revealed[other] + view.Revealed[other + 1],
          fncThirdCard(view, other + 2)};
}

/// A stage of the hand: when it is reached, and what is then said.
struct Stage {
  bool (*Applies)(const Outlook& seen);
  std::string (*Text)(const AdviceNumbers& known);
};

const std::array<Stage, 6> stages{{
    {[](const Outlook& seen) { return seen.blnPair && seen.intOwn == 1 && seen.intOther < 2; },
     [](const AdviceNumbers& known) { return fncNaturalText(known.v); }},
    {[](const Outlook& seen) {
       return (seen.intOwn == 2 && seen.intOther == 0) || (seen.intOwn == 0 && seen.intOther == 2);
     },
     [](const AdviceNumbers& known) { return fncPressureText(known.t); }},
    {[](const Outlook& seen) { return seen.blnPair && seen.intOwn == 1 && seen.intOther == 2; },
     [](const AdviceNumbers& known) { return fncOutcomeText(known.v, known.t); }},
    {[](const Outlook& seen) {
       return seen.Index == 2 && seen.blnHidden &&
              (seen.OtherThird == ThirdCard::Absent || seen.OtherThird == ThirdCard::FaceDown);
     },
     [](const AdviceNumbers& known) { return fncPlayerThirdText(known.v, known.t); }},
    {[](const Outlook& seen) {
       return seen.Index == 5 && seen.blnHidden && seen.OtherThird == ThirdCard::FaceDown;
     },
     [](const AdviceNumbers& known) { return fncHardToBeatText(known.v); }},
    {[](const Outlook& seen) {
       return !seen.blnPair && seen.blnHidden &&
              (seen.OtherThird == ThirdCard::Revealed ||
               (seen.Index == 5 && seen.OtherThird == ThirdCard::Absent));
     },
     [](const AdviceNumbers& known) { return fncLastCardText(known.v, known.t); }},
}};

}  // namespace

std::string fncNaturalText(Integer v) {
  return fncJoin("", fncNaturalCards(fncWorth(v)) + " for NATURAL");
}

std::string fncPressureText(Integer t) {
  if (t < 4) {
    return fncJoin({"", "NO PRESSURE", nullptr});
  }
  return fncJoin(pressureFrom4.at(static_cast<std::size_t>(t - 4)));
}

std::string fncOutcomeText(Integer v, Integer t) {
  const int worth = fncWorth(v);
  switch (int{t}) {
    case 6:
      return fncJoin(fncWinningCards(worth, 3), fncTieCard(26 - worth));
    case 7:
      return fncJoin(fncWinningCards(worth, 2), fncTieCard(27 - worth),
                     fncCard(26 - worth) + " to LOSE");
    case 8:
      return fncAgainst8(worth);
    case 9:
      return fncJoin(fncTieCard(29 - worth), fncCards(30 - worth, 38 - worth) + " to LOSE");
    default:
      return fncJoin("", fncNaturalCards(worth) + " to WIN");
  }
}

std::string fncHardToBeatText(Integer v) {
  std::string list;
  for (int total = 6; total <= 9; ++total) {
    list += (total > 6 ? ", " : "") + std::to_string(total - v);
  }
  return fncJoin("", list + " Hard to beat");
}

std::string fncPlayerThirdText(Integer v, Integer t) {
  if (t < 3) {
    return fncHardToBeatText(v);
  }
  if (t > 7 || v < 0 || v > 5) {
    return "";
  }
  return fncJoin(
      playerThirdFrom3.at(static_cast<std::size_t>(t - 3)).at(static_cast<std::size_t>(int{v})));
}

std::string fncLastCardText(Integer v, Integer t) {
  // Ten cards in the order of the totals they make, from one above t around to t itself.
  const int first = int{t} + 21 - int{v};
  const int wins = 9 - int{t};
  std::string win = fncCards(first, first + wins - 1);
  std::string lose = fncCards(first + wins, first + 8);
  win += win.empty() ? "" : "to WIN";
  lose += lose.empty() ? "" : "to LOSE";
  return fncJoin(win, fncCard(first + 9, "10 ,Picture") + " to TIE", lose);
}

bool fncAdvice(Integer Index, const TableView& view, const AdviceNumbers& numbers,
               std::string& text) {
  if (!view.Revealed[0] && !view.Revealed[1] && !view.Revealed[3] && !view.Revealed[4]) {
    return false;
  }
  const Outlook seen = fncOutlook(Index, view);
  bool blnGiven = false;
  for (const Stage& stage : stages) {
    if (stage.Applies(seen)) {
      text = stage.Text(numbers);
      blnGiven = true;
    }
  }
  return blnGiven;
}
