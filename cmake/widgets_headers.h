#pragma once

#include "core_headers.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <QtWidgets>
