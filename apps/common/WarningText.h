// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace usage
{
struct ReachedPlan;
}

/// Warnings of data plans, in the language of the program.
namespace common
{

/// Which plan has reached that percentage.
QString warningTitle(const usage::ReachedPlan &reached, int percent);
/// What is used and left, as a sentence.
QString warningDetails(const usage::ReachedPlan &reached);
/// Both in one line.
QString warningText(const usage::ReachedPlan &reached, int percent);

} // namespace common
