#pragma once

#include "imageproperty.h"

#include <string>

/// The shortest text that reads back as the same number, with a decimal point.
std::string NumberToText(double number);

/// The nearest number with that many digits after the decimal point.
double RoundToDigits(double number, int digits);

/// Reads a number for a property: clamps it to the property's range, rounds it where only whole
/// numbers count, and refuses what is not a finite number.
sWriteResult ReadNumber(const sImageProperty& property, const std::string& text, double& number);
