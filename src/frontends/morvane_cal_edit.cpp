#include "frontends/morvane_cal_edit.h"

#include <utility>

#include "frontends/panel_keys.h"

namespace quorix {

namespace {

constexpr char16_t kBackspace = 8;

}  // namespace

MorvaneCalEdit::MorvaneCalEdit(const CalculatorSettings& settings, CalEditOwner owner)
    : ExpressionEditor(settings), owner_(std::move(owner)) {}

void MorvaneCalEdit::Key(std::int32_t code) {
    const bool movesOnly = code == KEY_CLEAR || code == KEY_LEFT || code == KEY_RIGHT;
    if ((!focused_ && code != KEY_CLEAR) || (readOnly_ && !movesOnly)) {
        return;
    }
    showEquals_ = false;
    if (code == KEY_SHIFT) {
        shift_ = !shift_;
    } else {
        EditKey(code);
        shift_ = false;
        ModeKey(code);
    }
    Invalidate();
}

bool MorvaneCalEdit::Character(char16_t character) {
    if (!focused_) {
        return false;
    }
    if (character == kBackspace) {
        if (!readOnly_ && Line().Cursor() > 0) {
            Key(KEY_LEFT);
            Key(KEY_DELETE);
        }
        return true;
    }
    const std::int32_t code = KeyOfCharacter(character, base_);
    if (code == KEY_NONE || code == KEY_EQUALS) {
        return false;
    }
    Key(code);
    return true;
}

void MorvaneCalEdit::SetFocused(bool focused) {
    focused_ = focused;
    Invalidate();
}

void MorvaneCalEdit::SetFramed(bool framed) {
    framed_ = framed;
    Invalidate();
}

void MorvaneCalEdit::SetMarked(bool marked) {
    for (const DisplayColour text :
         {DisplayColour::digitToken, DisplayColour::operatorToken, DisplayColour::parenthesisToken,
          DisplayColour::signToken, DisplayColour::nameToken, DisplayColour::degreeToken}) {
        colours_[text] = marked ? display_colors::kMarkedText : kDisplayColours[text];
    }
    Invalidate();
}

void MorvaneCalEdit::Tap(int x, int scale) {
    SetFocused(true);
    const int token = TokenAt(x - kCalEditInset * scale);
    SetCursor(token >= 0 ? token : Line().TokenCount());
}

void MorvaneCalEdit::UpdateView(std::span<const int> tokenWidths, int clientWidth, int scale) {
    ShowInRoom(tokenWidths, clientWidth - (kCalEditInset + kCalEditCursorRoom) * scale);
}

std::vector<ContextMenuItem> MorvaneCalEdit::Menu(Clipboard& clipboard) const {
    std::vector<ContextMenuItem> items = LineMenuOf(*this, clipboard);
    items.push_back({MENU_USE_IN_ARITHMETIC, u"Use in arithmetic module",
                     !GetLine().empty() && owner_.useInArithmetic != nullptr});
    return items;
}

void MorvaneCalEdit::RunMenu(int id, Clipboard& clipboard) {
    if (id != MENU_USE_IN_ARITHMETIC) {
        RunLineMenu(id, *this, clipboard);
    } else if (owner_.useInArithmetic) {
        CopyLine(*this, clipboard);
        owner_.useInArithmetic();
    }
}

void MorvaneCalEdit::Invalidate() const {
    if (owner_.invalidate) {
        owner_.invalidate();
    }
}

}  // namespace quorix
