#pragma once

// Draws the main window's body and its two key panels from the pictures of a skin.

#include <QImage>
#include <map>
#include <tuple>

#include "frontends/key_panel.h"
#include "platform/color.h"
#include "platform/dense_picture.h"

class QPainter;

namespace quorix {

/// The pictures of the panels; empty ones are not drawn.
struct PanelPictures {
    DensePicture smallButtons;
    DensePicture smallFontsGeneral;  ///< Labels of the cells 12 to 17 of the upper panel.
    DensePicture largeButtons;
    DensePicture largeFonts;
};

/// Two frame lines of one device pixel, and the body inside them.
struct BodyColours {
    ColorRef outer;
    ColorRef inner;
    ColorRef body;
};

/// All painters draw in device pixels: logical units times `scale`.
class PanelPainter {
  public:
    /// Takes the pictures of a skin. They may be freed afterwards.
    void SetPictures(const PanelPictures& pictures);
    /// Takes a category's page of labels, for the cells 0 to 11 of the upper panel.
    void SetPageLabels(const DensePicture& smallFonts);

    static void PaintBody(QPainter& painter, const Rect& client, const BodyColours& colours);
    /// "Landscape" in white, centred in `rect` (device pixels).
    static void PaintLandscapeWord(QPainter& painter, const Rect& rect, int scale);

    /// One key: its cap and its label. A pressed label stands two units lower.
    void PaintCell(QPainter& painter, Orientation orientation, int scale, PanelCell cell, bool down);
    /// The same with other words on it: the label of another lower key, or a text when `text` is not empty.
    void PaintLowerCellAs(QPainter& painter, Orientation orientation, int scale, int cell, bool down,
                          int labelOf, const QString& text);
    /// A cap of a row (UpperCapRow or LowerCapRow) at a place in device pixels, for windows with keys of
    /// their own.
    void PaintCap(QPainter& painter, Panel panel, int row, const Rect& place, bool down, int scale);
    void PaintPanel(QPainter& painter, Orientation orientation, int scale, Panel panel,
                    const PanelLooks& looks);

  private:
    /// One strip of caps: rows of styles, the up look at left, the down look at right.
    struct CapStrip {
        QImage picture;
        int rows = 1;
        [[nodiscard]] QImage Cut(int row, bool down) const;
    };
    /// A grid of labels.
    struct LabelGrid {
        QImage picture;
        int columns = 1;
        int rows = 1;
        /// In pixels of the picture.
        [[nodiscard]] QSize LabelSize() const;
    };
    struct Label {
        const LabelGrid* grid;
        int index;
    };

    void PaintLabel(QPainter& painter, const QRect& place, const Label& label, bool down, int scale);
    const QImage& CapPicture(Panel panel, int row, QSize size, bool down, int scale);
    [[nodiscard]] Label LabelOf(PanelCell cell) const;

    CapStrip smallCaps_;
    CapStrip largeCaps_;
    LabelGrid smallLabels_;
    LabelGrid generalLabels_;
    LabelGrid largeLabels_;
    /// Caps by panel, row, look, width and height, cut once.
    std::map<std::tuple<Panel, int, bool, int, int>, QImage> caps_;
};

}  // namespace quorix
