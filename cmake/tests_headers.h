#pragma once

#include "widgets_headers.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
