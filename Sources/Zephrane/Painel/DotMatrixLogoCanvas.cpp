#include "Painel/DotMatrixLogoCanvas.hpp"

#include "Painel/PainelCanvas.hpp"

#include "Painel/PainelAnimation.hpp"

#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr int glyphWidth = 5;
constexpr int glyphHeight = 7;
constexpr int letterGap = 1;

using Glyph = std::array<std::string_view, glyphHeight>;

// Z E P H R A N E, five by seven, the classic display cell.
constexpr std::array<Glyph, 8> letters{{
    {"#####", "....#", "...#.", "..#..", ".#...", "#....", "#####"},
    {"#####", "#....", "#....", "####.", "#....", "#....", "#####"},
    {"####.", "#...#", "#...#", "####.", "#....", "#....", "#...."},
    {"#...#", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"},
    {"####.", "#...#", "#...#", "####.", "#.#..", "#..#.", "#...#"},
    {".###.", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"},
    {"#...#", "##..#", "##..#", "#.#.#", "#..##", "#..##", "#...#"},
    {"#####", "#....", "#....", "####.", "#....", "#....", "#####"},
}};

constexpr int figureColumns = int(letters.size()) * (glyphWidth + letterGap) - letterGap;

} // namespace

DotMatrixLogoCanvas::DotMatrixLogoCanvas(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

int DotMatrixLogoCanvas::stepCount() const {
    return int(letters.size());
}
int DotMatrixLogoCanvas::columns() const {
    return figureColumns;
}
int DotMatrixLogoCanvas::rows() const {
    return glyphHeight;
}

int DotMatrixLogoCanvas::stepOf(int column) {
    return column / (glyphWidth + letterGap);
}

bool DotMatrixLogoCanvas::isFigure(int column, int row) {
    if (column < 0 || column >= figureColumns || row < 0 || row >= glyphHeight)
        return false;
    const int inLetter = column % (glyphWidth + letterGap);
    return inLetter < glyphWidth && letters[stepOf(column)][row][inLetter] == '#';
}

double DotMatrixLogoCanvas::brightness(int step, double litCount) {
    return PainelAnimation::easeOut(litCount - step);
}

void DotMatrixLogoCanvas::setLitCount(qreal value) {
    value = std::clamp(value, 0.0, qreal(letters.size()));
    if (PainelCanvas::store(this, lit, value))
        emit changed();
}

void DotMatrixLogoCanvas::setOnColor(const QColor& value) {
    if (PainelCanvas::store(this, on, value))
        emit changed();
}

void DotMatrixLogoCanvas::setOffColor(const QColor& value) {
    if (PainelCanvas::store(this, off, value))
        emit changed();
}

void DotMatrixLogoCanvas::paint(QPainter* painter) {
    const qreal pitch = std::min(width() / figureColumns, height() / glyphHeight);
    if (pitch <= 0)
        return;
    const qreal dot = pitch * 0.78;
    const qreal left = (width() - pitch * figureColumns) / 2;
    const qreal top = (height() - pitch * glyphHeight) / 2;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    for (int column = 0; column < figureColumns; ++column) {
        const double shine = brightness(stepOf(column), lit);
        QColor lamp = off;
        // A lamp warming up blends from its unlit colour to the lit one.
        lamp.setRgbF(off.redF() + (on.redF() - off.redF()) * shine,
                     off.greenF() + (on.greenF() - off.greenF()) * shine,
                     off.blueF() + (on.blueF() - off.blueF()) * shine);
        for (int row = 0; row < glyphHeight; ++row) {
            painter->setBrush(isFigure(column, row) ? lamp : off);
            const QRectF cell(left + column * pitch + (pitch - dot) / 2,
                              top + row * pitch + (pitch - dot) / 2, dot, dot);
            painter->drawEllipse(cell);
        }
    }
}
