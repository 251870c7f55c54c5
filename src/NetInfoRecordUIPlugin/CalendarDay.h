// SPDX-License-Identifier: MIT
#pragma once

/// A day from 1968-03-01 to 2100-02-28: between these each fourth year is a leap year, which
/// makes for short arithmetic. QDate knows all the others, and takes several times as long.
struct CalendarDay {
    int year;
    int month;
    int day;

    /// The day that is so many after 1970-01-01.
    static constexpr CalendarDay at(int daysSince1970)
    {
        // Years begin in March here, so that the leap day is the last one of its four years.
        const int days = daysSince1970 + daysFromMarch1968;
        const int ofFourYears = days % daysOfFourYears;
        const int year = ofFourYears == daysOfFourYears - 1 ? 3 : ofFourYears / 365;
        const int dayOfYear = ofFourYears - year * 365;
        const int month = (dayOfYear * 5 + 2) / 153; // five months have 153 days
        const bool isNextYear = month >= 10;
        return {1968 + days / daysOfFourYears * 4 + year + (isNextYear ? 1 : 0),
                isNextYear ? month - 9 : month + 3, dayOfYear - (month * 153 + 2) / 5 + 1};
    }

    constexpr int daysSince1970() const
    {
        const int monthFromMarch = month > 2 ? month - 3 : month + 9;
        const int yearFromMarch = (month > 2 ? year : year - 1) - 1968;
        return yearFromMarch * 365 + yearFromMarch / 4 + (monthFromMarch * 153 + 2) / 5 + day - 1 -
               daysFromMarch1968;
    }

    /// Whether the calendar has such a day.
    constexpr bool exists() const
    {
        const bool isShort = month == 4 || month == 6 || month == 9 || month == 11;
        const int february = year % 4 == 0 ? 29 : 28;
        return month >= 1 && month <= 12 && day >= 1 &&
               day <= (month == 2 ? february
                       : isShort  ? 30
                                  : 31);
    }

private:
    static constexpr int daysOfFourYears = 1461;
    static constexpr int daysFromMarch1968 = 671;
};
