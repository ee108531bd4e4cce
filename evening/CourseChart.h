#pragma once

#include <memory>
#include <string>

#include "evening/Luck.h"
#include "platform/Chart.h"

// The course of the money as a chart and as a sentence.

/// The curves of a scope's seats with their stakes, bands, marks and shoes. The first line has a
/// point for each hand and one in front of them. Empty before the first hand.
std::shared_ptr<const ChartData> fncCourseChart(const Scope& scope);

/// The same as it is spoken of.
std::string fncCourseSentence(const Scope& scope);

/// The hand behind which a point of the chart lies, numbered from 1; 0 for the start of the
/// evening.
int fncHandOfPoint(const ChartData& chart, int point);

/// What is told of a hand that is pointed at.
std::string fncHandSentence(int number);
