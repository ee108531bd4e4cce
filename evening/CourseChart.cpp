#include "evening/CourseChart.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "evening/Curve.h"
#include "evening/EveningWindow.h"
#include "evening/Reckoning.h"
#include "platform/Texts.h"

namespace {

constexpr std::array<Colour, intSeats> clrSeats{Colour{20, 92, 60}, Colour{38, 74, 140}};
constexpr Colour clrStake{138, 106, 16};
constexpr double dblCurveWidth = 1.75, dblRunWidth = 3.5;
constexpr int intMostSpans = 250;  // About, of a band.
constexpr double dblCent = 0.01;

/// No play leads beyond it, only a settings file written by hand; there cents are lost.
constexpr double dblMostDrawn = 1e12;

ChartPoint fncAt(int hand, double money) { return {static_cast<double>(hand), money}; }

/// A chart under construction, of one seat at a time.
struct Sheet {
  ChartData& Chart;
  int Shoe;
  Reach Hands;
  int Seat;
  std::vector<CurvePoint> Curve;  ///< By hand, from the one behind which it begins.

  const CurvePoint& fncPoint(int hand) const {
    return Curve[static_cast<std::size_t>(hand - Hands.From)];
  }
  /// Whether what has happened since the last hand belongs here.
  bool fncGoesOn() const { return Hands.To == std::ssize(colEveningHands); }
  ChartPoint fncMoney(int hand) const { return fncAt(hand, fncPoint(hand).Money); }
  double fncWon(int hand) const { return fncPoint(hand).Money - fncPoint(hand).Base; }
};

void prcAddCurve(Sheet& sheet) {
  std::vector<ChartPoint> points;
  points.reserve(sheet.Curve.size());
  for (int hand = sheet.Hands.From; hand <= sheet.Hands.To; ++hand) {
    points.push_back(sheet.fncMoney(hand));
  }
  sheet.Chart.Lines.push_back({.Name = fncSeatName(sheet.Seat),
                               .Ink = clrSeats.at(static_cast<std::size_t>(sheet.Seat)),
                               .Width = dblCurveWidth,
                               .Points = std::move(points)});
}

/// The base line, with a step behind the hand after which the stake changed.
void prcAddStake(Sheet& sheet, bool blnNamed) {
  const Reach& hands = sheet.Hands;
  std::vector<ChartPoint> points{fncAt(hands.From, sheet.fncPoint(hands.From).Stake)};
  const auto stepTo = [&](int hand, double stake) {
    if (points.back().Y != stake) {
      points.push_back(fncAt(hand, points.back().Y));
      points.push_back(fncAt(hand, stake));
    }
  };
  for (int hand = hands.From; hand < hands.To; ++hand) {
    stepTo(hand, sheet.fncPoint(hand + 1).Stake);
  }
  if (sheet.fncGoesOn()) {
    stepTo(hands.To, fncStakeNow(sheet.Seat));
  }
  if (const ChartPoint end = fncAt(hands.To, points.back().Y); points.back() != end) {
    points.push_back(end);
  }
  sheet.Chart.Lines.push_back({.Name = blnNamed ? "Stake" : "",
                               .Ink = clrStake,
                               .Width = 1,
                               .blnDashed = true,
                               .Points = std::move(points)});
}

/// The bands as far as they are reckoned. In a long evening not every hand has its edges: they
/// change little from one to the next.
void prcAddBands(Sheet& sheet, bool blnNamed) {
  struct Row {
    const char* Name;
    std::size_t Low, High;
  };
  const int last = sheet.Hands.From + fncReckoning(sheet.Shoe).Hands;
  const int step = std::max((last - sheet.Hands.From) / intMostSpans, 1);
  for (const Row& row : {Row{"90 of 100 players", 0, 3}, Row{"50 of 100 players", 1, 2}}) {
    ChartBand band{.Name = blnNamed ? row.Name : "",
                   .Tint = clrSeats.at(static_cast<std::size_t>(sheet.Seat))};
    const auto add = [&](int hand) {
      const auto& edges = sheet.fncPoint(hand).Band;
      band.Spans.push_back({static_cast<double>(hand), edges.at(row.Low), edges.at(row.High)});
    };
    for (int hand = sheet.Hands.From; hand < last; hand += step) {
      add(hand);
    }
    add(last);
    sheet.Chart.Bands.push_back(std::move(band));
  }
}

/// The line of a stretch at its winnings. It ends and begins anew where money came from elsewhere
/// than from bets, so that nobody takes that for a win or a loss. It bends at each hand, or
/// nowhere.
template <class Winnings>
void prcAddStretch(Sheet& sheet, const Stretch& over, ChartLine line, bool blnEachHand,
                   Winnings won) {
  const auto base = [&](int hand) { return sheet.fncPoint(hand).Base; };
  const auto at = [&](int hand, double from) { return fncAt(hand, won(hand) + from); };
  const auto end = [&] {
    if (line.Points.size() > 1) {
      sheet.Chart.Lines.push_back(line);
    }
  };
  line.Ink = clrLoss;
  line.Points = {at(over.From, base(over.From))};
  for (int hand = over.From + 1; hand <= over.To; ++hand) {
    if (std::abs(base(hand) - base(hand - 1)) > dblCent / 2) {
      if (!blnEachHand && line.Points.back() != at(hand - 1, base(hand - 1))) {
        line.Points.push_back(at(hand - 1, base(hand - 1)));
      }
      end();
      line.Points = {at(hand - 1, base(hand))};
    }
    if (blnEachHand || hand == over.To) {
      line.Points.push_back(at(hand, base(hand)));
    }
  }
  end();
}

void prcAddFall(Sheet& sheet) {
  const Stretch fall = fncDeepestFall(sheet.Seat, sheet.Shoe);
  if (fall.Amount == 0) {
    return;
  }
  const double top = sheet.fncWon(fall.From), slope = fall.Amount / (fall.To - fall.From);
  prcAddStretch(sheet, fall, {.Width = 1, .blnDashed = true}, false,
                [&](int hand) { return top - (hand - fall.From) * slope; });
  sheet.Chart.Marks.push_back(
      {sheet.fncMoney(fall.To), clrLoss, "Deepest fall " + fncCurrency(fall.Amount)});
}

void prcAddRun(Sheet& sheet) {
  const Stretch run = fncLongestLosingRun(sheet.Seat, sheet.Shoe);
  if (run.Amount < 2) {
    return;
  }
  prcAddStretch(sheet, run, {.Width = dblRunWidth}, true,
                [&](int hand) { return sheet.fncWon(hand); });
  sheet.Chart.Marks.push_back({sheet.fncMoney(run.From), clrLoss,
                               std::to_string(static_cast<int>(run.Amount)) + " lost in a row"});
}

void prcAddResets(Sheet& sheet) {
  for (int hand = sheet.Hands.From; hand <= sheet.Hands.To; ++hand) {
    const bool blnReset = hand < sheet.Hands.To ? fncEveningHand(hand + 1).Reset
                                                : sheet.fncGoesOn() && fncResetSince();
    if (blnReset) {
      sheet.Chart.Marks.push_back({sheet.fncMoney(hand), clrStake, "Statistics reset"});
    }
  }
}

void prcAddShoes(ChartData& chart, Reach reach) {
  int shoe = 0;
  for (int hand = reach.From; hand < reach.To; ++hand) {
    if (const int of = fncEveningHand(hand + 1).Shoe; of != shoe) {
      shoe = of;
      chart.Ticks.push_back({static_cast<double>(hand), "Shoe " + std::to_string(shoe)});
    }
  }
}

/// Whether a seat has owned or staked more than can be drawn.
bool fncTooMuch() {
  const auto much = [](double money) { return std::abs(money) > dblMostDrawn; };
  return std::ranges::any_of(colEveningHands, [&](const EveningHand& hand) {
    return std::ranges::any_of(hand.Money, much) || std::ranges::any_of(hand.Stake, much);
  });
}

std::string fncSeatSentence(const Scope& scope, int seat) {
  const std::vector<CurvePoint> curve = fncCurve(seat, scope.Shoe);
  const Reach reach = fncReach(scope.Shoe);
  const auto [low, high] = std::ranges::minmax_element(curve, {}, &CurvePoint::Money);
  const auto at = [&](auto point) {
    return fncCurrency(point->Money) + " behind hand " +
           std::to_string(point - curve.begin() + reach.From);
  };
  std::string sentence =
      " " + fncSeatName(seat) + " came with " + fncCurrency(curve.front().Money) + " and has " +
      fncCurrency(curve.back().Money) + ", had most, " + at(high) + ", and least, " + at(low) + ".";
  const Stretch fall = fncDeepestFall(seat, scope.Shoe);
  const Stretch run = fncLongestLosingRun(seat, scope.Shoe);
  if (fall.Amount > 0) {
    sentence += " The deepest fall was " + fncCurrency(fall.Amount) + ", from hand " +
                std::to_string(fall.From) + " to " + std::to_string(fall.To) + ".";
  }
  if (run.Amount > 0) {
    sentence += " Most losses in a row: " + std::to_string(static_cast<int>(run.Amount)) + ".";
  }
  return sentence;
}

}  // namespace

std::shared_ptr<const ChartData> fncCourseChart(const Scope& scope) {
  auto chart = std::make_shared<ChartData>();
  if (colEveningHands.empty() || fncTooMuch()) {
    return chart;
  }
  chart->AxisName = "Hand";
  chart->YText = fncCurrency;
  const Reach reach = fncReach(scope.Shoe);
  std::vector<Sheet> sheets;
  for (int seat = 0; seat < intSeats; ++seat) {
    if (scope.fncHas(seat)) {
      sheets.push_back({*chart, scope.Shoe, reach, seat, fncCurve(seat, scope.Shoe)});
    }
  }
  for (Sheet& sheet : sheets) {
    prcAddCurve(sheet);
  }
  for (Sheet& sheet : sheets) {
    const bool blnFirst = &sheet == &sheets.front();
    prcAddStake(sheet, blnFirst);
    prcAddBands(sheet, blnFirst);
    prcAddFall(sheet);
    prcAddRun(sheet);
    prcAddResets(sheet);
  }
  prcAddShoes(*chart, reach);
  return chart;
}

std::string fncCourseSentence(const Scope& scope) {
  const Reach reach = fncReach(scope.Shoe);
  if (reach.To == reach.From) {
    return "Course of the money: no hand has been settled yet.";
  }
  if (fncTooMuch()) {
    return "Course of the money: amounts beyond " + fncCurrency(dblMostDrawn) + " are not drawn.";
  }
  std::string sentence =
      "Course of the money over " + fncCounted(reach.To - reach.From, "hand") + ".";
  for (int seat = 0; seat < intSeats; ++seat) {
    if (scope.fncHas(seat)) {
      sentence += fncSeatSentence(scope, seat);
    }
  }
  return sentence;
}

int fncHandOfPoint(const ChartData& chart, int point) {
  return static_cast<int>(chart.Lines.front().Points[static_cast<std::size_t>(point)].X);
}

std::string fncHandSentence(int number) {
  const EveningHand& hand = fncEveningHand(number);
  const std::string totals = std::to_string(fncTotalOf(hand, Side::Player)) + " to " +
                             std::to_string(fncTotalOf(hand, Side::Banker));
  std::string sentence = "Hand " + std::to_string(number) + ", shoe " + std::to_string(hand.Shoe) +
                         ": Player to Banker " + totals + ".";
  for (int seat = 0; seat < intSeats; ++seat) {
    const double net = fncNet(hand, seat);
    const std::string change = net == 0  ? "as before"
                               : net > 0 ? "won " + fncCurrency(net)
                                         : "lost " + fncCurrency(-net);
    sentence += "  " + fncSeatName(seat) + ": " +
                fncCurrency(hand.Money.at(static_cast<std::size_t>(seat))) + ", " + change + ".";
  }
  return sentence;
}
