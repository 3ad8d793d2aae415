#ifndef TESTS_TOLD_VIEW_H
#define TESTS_TOLD_VIEW_H

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include <brask/fenn.h>
#include <brask/fonts.h>
#include <brask/texts.h>

// What a console shows, written a second time: log, strip and sliders, each painted by the operations of the
// base and of the sliders alone.
struct Told_View : Texts {
    // --- Reports ---
    void in(const char* operation) {
        Error_Fct(hwnd, 0x90000029, ">>> in  Lib_Brask: %hs(%ls)", operation, W_Name ? W_Name : L"no name");
    }
    void out(const char* operation, const char* tag) {
        Error_Fct(hwnd, 0x90000029, "<<< out Lib_Brask: %hs(%hs)", operation, tag);
    }
    int out(const char* operation, const char* tag, int result) {
        out(operation, tag);
        return result;
    }
    void first_use(const char* type) {
        if (test & 3) return;
        Error_Fct(hwnd, 0x80000001, "Tools: WARNING ! ");
        Error_Fct(hwnd, 0x80000001,
                  test ? "   bad data in device's structure" : "   you must call *_Init() first");
        Error_Fct(hwnd, 0x80000001, "   type: %hs   name: %ls\n", type, W_Name ? W_Name : L"no name");
        test = 2;
    }
    bool small() const { return Dim_X < 1 || Dim_Y < 1; }
    bool has(DWORD flag) const { return (Flag & flag) != 0; }
    int bevel() const { return Border ? Border : BORDER; }
    HFONT font(const char* weight, const char* slant) const {
        return Zeb_Create_Font(Wnd, Font_Name, weight, slant, Font_Size);
    }

    // --- Painting ---
    void Draw() {
        in("Texts::Draw");
        if (has(OUTIL_INVISIBLE)) return out("Texts::Draw", "OUTIL_INVISIBLE");
        first_use("Text::Draw");
        if (small()) return out("Texts::Draw", "<0");
        if (has(GRAPH_OUTLINE)) {
            Cadre_Outline(Pos_X, Pos_X + Dim_X, Pos_Y, Pos_Y + Dim_Y);
            return out("Texts::Draw", "GRAPH_OUTLINE");
        }
        if (!has(OUTIL_EMPTY)) Fill(Flag, Pos_X, Pos_X + Dim_X, Pos_Y, Pos_Y + Dim_Y);
        Cadre(1, 1, bevel(), Pos_X, Pos_X + Dim_X, Pos_Y, Pos_Y + Dim_Y);
        if (W_Name) {
            const int t = Pos_Y + Dim_Y - SPACE;
            Cadre(1, 0, 2, Pos_X + SPACE, Pos_X + Dim_X - SPACE, t - 20, t);
            Text(W_Name, Flag, Pos_X, t - 20, Dim_X, 20, Border, 0);
        }
        if (has(TEXTS_CURSOR_V)) Cursor_V.Draw();
        if (has(TEXTS_CURSOR_H)) Cursor_H.Draw();
        paint_inside();
        out("Texts::Draw", "done");
    }
    void paint_inside() {
        Re_Write();
        if (!(flag_read & 1) || has(OUTIL_INVISIBLE)) return;
        Cadre(1, 1, 2, Read_X1, Read_X2, Read_Y1, Read_Y2 - 1);
        Read_Echo(Edit_Line, Edit_Pos);
    }
    struct Rect {
        int x, y, width, height;
    };
    Rect log_area() const {
        const int b = bevel();
        Rect log = {Pos_X + 1 + b, Pos_Y + b, Dim_X - 2 * b - 1, Dim_Y - 2 * b - 1};
        if (W_Name) log.height -= SPACE + 20;
        if (has(TEXTS_CURSOR_V)) log.x += CURSEUR + SPACE, log.width -= CURSEUR + SPACE;
        if (has(TEXTS_CURSOR_H)) log.y += CURSEUR + SPACE, log.height -= CURSEUR + SPACE;
        if (has(TEXTS_READ_STRIP) || flag_read) log.y += Font_Dim_Y + 3 * b, log.height -= Font_Dim_Y + 3 * b;
        return log;
    }
    void clip_to(Rect area) const {
        if (Clip_Dim_X) {
            const int left = std::max(area.x, Clip_X), bottom = std::max(area.y, Clip_Y);
            const int right = std::min(area.x + area.width, Clip_X + Clip_Dim_X);
            const int top = std::min(area.y + area.height, Clip_Y + Clip_Dim_Y);
            area = {left, bottom, right - left, top - bottom};
        }
        Zeb_set_clip(area.x, area.y, area.width, area.height);
    }
    int shift_v() const {
        const bool scrolls = has(TEXTS_CURSOR_V) && !(Cursor_V.Flag & OUTIL_DISABLE);
        return scrolls ? -static_cast<int>(std::trunc(Cursor_V.Cur_Value)) : 0;
    }
    int shift_h() const {
        const bool scrolls = has(TEXTS_CURSOR_H) && !(Cursor_H.Flag & OUTIL_DISABLE);
        return scrolls ? -static_cast<int>(std::trunc(Cursor_H.Cur_Value)) : 0;
    }
    void Re_Write() {
        if (has(OUTIL_INVISIBLE) || !Lines) return;
        const Rect log = log_area();
        if (log.height < 1) return;
        const HFONT fonts[] = {font("medium", "r"), font("bold", "r"), font("medium", "o")};
        Fill(0, log.x, log.x + log.width, log.y, log.y + log.height);
        Zeb_setup(Wnd, "Texts::Re_Write");
        clip_to(log);
        for (int i = 0; i < 8192; i++) {
            const int y = i * Font_Dim_Y + shift_v();
            if (y < 0 || y > Dim_Y || !Lines[i]) continue;
            write_line(i, fonts, log.x + 2, log.y + y);
        }
        Zeb_reset_clip();
        Zeb_release();
    }
    void write_line(int i, const HFONT* fonts, int left, int y) {
        static const unsigned long colors[] = {0, 0xFF0000, 1, 0xFFFFFF, 0xFF, 0xFFFF, 0xA000};
        Zeb_Font_Color(1, 0);
        HFONT now = fonts[0];
        int x = shift_h();
        std::wstring run;
        const auto close = [&] {
            if (!run.empty() && !(has(TEXTS_FIELD) && i != 0)) {
                Zeb_Font_Write(now, left + x, y, run.c_str());
                x += Zeb_Font_Size_String(now, run.c_str());
            }
            run.clear();
        };
        for (const wchar_t* c = Lines[i]; *c; c++) {
            const int low = static_cast<int>(*c) & 0xFF;
            const bool color = low >= 1 && low <= 6, face = low >= 240 && low <= 242;
            if (!color && !face) {
                run += *c;
                continue;
            }
            close();
            if (color) Zeb_Font_Color(colors[low], 0);
            if (face) now = fonts[low - 240];
        }
        close();
        Line_Width[i] = x - shift_h();
    }

    // --- Sliders ---
    void Rescale_Cursor() {
        int widest = 0, total = 0, wide = 0;
        if (Lines) {
            for (int i = 0; i < 8192; i++) {
                if (!Lines[i]) continue;
                widest = std::max(widest, Line_Width[i]);
                total += Font_Dim_Y;
            }
            wide = widest + SPACE;
        }
        const int k = Cursor_Dim ? std::abs(Cursor_Dim) : CURSEUR;
        const int b2 = Border ? std::max(Border, 2) : BORDER, g = SPACE / 2;
        const int r = has(TEXTS_READ_STRIP) || flag_read ? Font_Dim_Y + 1 + 2 * b2 : 0;
        const int beside_v = has(TEXTS_CURSOR_V) ? k + g : 0, beside_h = has(TEXTS_CURSOR_H) ? k + g : 0;
        const int vw = Dim_X - 4 * b2 - 2 - beside_v;
        const int vh = Dim_Y - 4 * b2 - 2 - (W_Name ? SPACE + 20 : 0) - beside_h - r;
        for (Sliders* slider : {&Cursor_V, &Cursor_H}) {
            slider->Clip_X = Clip_X, slider->Clip_Y = Clip_Y;
            slider->Clip_Dim_X = Clip_Dim_X, slider->Clip_Dim_Y = Clip_Dim_Y;
        }
        if (has(TEXTS_CURSOR_V)) {
            Cursor_V.Pos_X = Pos_X + SPACE, Cursor_V.Dim_X = k;
            Cursor_V.Pos_Y = Pos_Y + SPACE + r + beside_h, Cursor_V.Dim_Y = vh;
            rescale(Cursor_V, OUTIL_VERTICAL, vh, total);
        } else {
            Cursor_V.Flag = OUTIL_DISABLE;
        }
        if (has(TEXTS_CURSOR_H)) {
            Cursor_H.Pos_X = Pos_X + SPACE + beside_v, Cursor_H.Dim_X = vw;
            Cursor_H.Pos_Y = Pos_Y + SPACE + r, Cursor_H.Dim_Y = k;
            rescale(Cursor_H, 0, vw, wide);
        } else {
            Cursor_H.Flag = OUTIL_DISABLE;
        }
    }
    void rescale(Sliders& slider, DWORD flag, int shown, int total) {
        slider.Border = 1;
        slider.Color = Colors(170, 170, 170);
        slider.Val_Min = 0;
        slider.Step = static_cast<float>(Font_Dim_Y);
        if (total > shown) {
            slider.Flag = Flag | flag;
            slider.Val_Max = static_cast<float>(total - shown);
            slider.Larg_Adjust(static_cast<float>(shown), static_cast<float>(total));
            slider.Init(Wnd);
        } else {
            slider.Flag = Flag | flag | OUTIL_DISABLE | GRAPH_OUTLINE;
            slider.Val_Max = 0;
            slider.Init(Wnd);
            slider.Draw();
        }
    }

    // --- The strip ---
    void Read_Echo(const wchar_t* text, int pos) {
        if (has(OUTIL_INVISIBLE)) return;
        const HFONT bold = font("bold", "r");
        const int b = bevel();
        Fill_Select(select == 1, nullptr, Flag, b + 1, Read_X1, Read_X2, Read_Y1, Read_Y2);
        const int room = Read_X2 - 4 * b - Read_X1;
        Zeb_setup(Wnd, "Texts::Read_Echo");
        clip_to({Read_X1 + b, Read_Y1 + b, Read_X2 - Read_X1 - 2 * b, Read_Y2 - Read_Y1 - 2 * b});
        const std::wstring line = text;
        const int length = static_cast<int>(line.size());
        const int held = std::clamp(pos, 0, length);
        const auto width = [&](const std::wstring& part) { return Zeb_Font_Size_String(bold, part.c_str()); };
        const int tail = held < length ? width(line.substr(static_cast<std::size_t>(held))) : 0;
        int start = 0;
        while (start < length && width(line.substr(static_cast<std::size_t>(start))) - tail > room)
            start++;
        std::wstring shown = line.substr(static_cast<std::size_t>(start));
        if (has(TEXTS_PASSWORD)) shown.assign(shown.size(), L'#');
        const int before = std::max(held - start, 0);
        if (select == 1) {
            const int x =
                Read_X1 + 3 + b + (before ? width(shown.substr(0, static_cast<std::size_t>(before))) : 0);
            Zeb_color(0xFFFF);
            for (const int at : {x, x + 1}) {
                move2s(static_cast<unsigned>(at), static_cast<unsigned>(Read_Y1 + 2 + b));
                draw2s(static_cast<unsigned>(at), static_cast<unsigned>(Read_Y2 - b - 2), 0);
            }
        }
        Zeb_Font_Color(1, 0);
        Zeb_Font_Write(bold, Read_X1 + 3 + b, Read_Y1 + b, shown.c_str());
        Zeb_reset_clip();
        Zeb_release();
    }
};

#endif
