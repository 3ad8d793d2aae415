#ifndef TESTS_TOLD_H
#define TESTS_TOLD_H

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include <brask/fenn.h>
#include <brask/fonts.h>
#include <brask/pointer.h>

#include "told_view.h"

// A console written a second time, one rule after the other as they are told: it walks all places of the log,
// keeps no range, shares no helper, and paints by the operations of the base and of the sliders alone. What
// it leaves in the log of calls is what the real one has to leave.
struct Told : Told_View {
    // --- Life ---
    void Init(HWND wnd) {
        in("Texts::Init");
        test |= 1;
        if (wnd) Wnd = wnd;
        if (!Wnd) {
            Error_Fct(hwnd, 0x90000021, "Tools: WARNING ! ");
            Error_Fct(hwnd, 0x90000021, "   you must provide a window");
            Error_Fct(hwnd, 0x90000021, "   type: Texts::Init   name: %ls", W_Name ? W_Name : L"no name");
            return out("Texts::Init", "!wnd");
        }
        if (small()) return out("Texts::Init", "<0");
        if (Color == Colors()) Color = Colors(170, 170, 170);
        SetRect(&Region, Pos_X, Pos_Y, Pos_X + Dim_X + 1, Pos_Y + Dim_Y + 1);
        if (flag_read == 0) std::fill_n(Edit_Line, 512, L'\0');
        const HFONT medium = font("medium", "r");
        if (medium != measured().font) {
            Zeb_setup(Wnd, "Texts::Init");
            measured().font = medium;
            measured().height = Zeb_Font_Size_Height(medium);
            measured().width = Zeb_Font_Size_String(medium, L"H");
            Zeb_release();
        }
        Font_Dim_Y = measured().height, Font_Dim_X = measured().width;
        lay_strip();
        if (!has(TEXTS_CURSOR_V)) std::memset(static_cast<void*>(&Cursor_V), 0, sizeof Cursor_V);
        if (!has(TEXTS_CURSOR_H)) std::memset(static_cast<void*>(&Cursor_H), 0, sizeof Cursor_H);
        if (has(TEXTS_CURSOR_V) || has(TEXTS_CURSOR_H)) Rescale_Cursor();
        out("Texts::Init", "done");
    }
    // What all consoles keep of the last font: the test brings it level with the real one.
    struct Measured {
        HFONT font;
        int width, height;
    };
    static Measured& measured() {
        static Measured last = {};
        return last;
    }
    void lay_strip() {
        const int b = bevel();
        if (has(TEXTS_FIELD)) {
            Read_X1 = Pos_X, Read_X2 = Pos_X + Dim_X, Read_Y1 = Pos_Y, Read_Y2 = Pos_Y + Dim_Y;
        } else {
            Read_X1 = Pos_X + 2 * b, Read_X2 = Pos_X + Dim_X - 2 * b;
            Read_Y1 = Pos_Y + 2 * b, Read_Y2 = Pos_Y - 1 + Font_Dim_Y + 4 * b;
        }
    }
    void Cleanup() {
        in("Texts::Cleanup");
        first_use("Text::Cleanup");
        if (small()) return out("Texts::Cleanup", "<0");
        for (int i = 0; Lines && i < 8192; i++)
            std::free(Lines[i]);
        if (Lines) std::free(Line_Width);
        std::free(Lines);
        Lines = nullptr, Line_Width = nullptr;
        for (int i = 0; History && i < 50; i++)
            std::free(History[i]);
        std::free(History);
        History = nullptr;
        std::fill_n(Edit_Line, 512, L'\0');
        if (has(TEXTS_CURSOR_V) || has(TEXTS_CURSOR_H)) Rescale_Cursor();
        flag_read = 0;
        out("Texts::Cleanup", "done");
    }

    // --- The log; the text is formed by the test, with at most 1023 characters ---
    static wchar_t* copy(const std::wstring& text) {
        auto* block = static_cast<wchar_t*>(std::malloc((text.size() + 1) * sizeof(wchar_t)));
        std::memcpy(block, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
        return block;
    }
    void Scroll_1(int n) {
        if (has(OUTIL_DISABLE)) return;
        if (!Lines) {
            Lines = static_cast<wchar_t**>(std::calloc(8192, sizeof *Lines));
            Line_Width = static_cast<int*>(std::calloc(8192, sizeof *Line_Width));
        }
        if (n == 0) {
            std::free(Lines[0]);
            Lines[0] = nullptr, Line_Width[0] = 0;
            return;
        }
        std::free(Lines[8191]);
        for (int i = 8191; i > 0; i--)
            Lines[i] = Lines[i - 1], Line_Width[i] = Line_Width[i - 1];
        Lines[0] = nullptr, Line_Width[0] = 0;
    }
    void put(const std::wstring& text, int first) {
        Scroll_1(first);
        std::wstring work;
        for (const wchar_t c : text) {
            if (c != L'\n') {
                work += c;
                continue;
            }
            Lines[0] = copy(work);
            Scroll_1(1);
            work.clear();
        }
        Lines[0] = copy(work);
        paint_inside();
        if (has(TEXTS_CURSOR_V) || has(TEXTS_CURSOR_H)) Rescale_Cursor();
        if (has(TEXTS_CURSOR_V)) Cursor_V.Cur_Value = 0, Cursor_V.Draw();
        if (has(TEXTS_CURSOR_H)) Cursor_H.Cur_Value = 0, Cursor_H.Draw();
    }
    void Write(const std::wstring& text) {
        in("Texts::Write");
        if (test == 0) return out("Texts::Write", "! test");
        first_use("Text::Write");
        if (small()) return out("Texts::Write", "<0");
        if (has(OUTIL_DISABLE)) return out("Texts::Write", "OUTIL_DISABLE");
        put(text, 1);
        out("Texts::Write", "done");
    }
    void OverWrite(const std::wstring& text) {
        if (test == 0) return;
        first_use("Text::OverWrite");
        if (small() || has(OUTIL_DISABLE)) return;
        put(text, 0);
    }
    void Center(int line) {
        in("Texts::Center");
        first_use("Text::Center");
        if (small()) return out("Texts::Center", "<0");
        if (has(OUTIL_DISABLE)) return out("Texts::Center", "OUTIL_DISABLE");
        int count = 0;
        for (int i = 0; Lines && i < 8192; i++)
            count += Lines[i] != nullptr;
        if (count && has(TEXTS_CURSOR_V)) {
            const float part = static_cast<float>(line) / static_cast<float>(count);
            Cursor_V.Cur_Value = (1.0f - part) * Cursor_V.Val_Max;
            Cursor_V.Adjust();
            Re_Write();
        }
        out("Texts::Center", "");
    }

    // --- Wheel and pointer ---
    void Scroll(int n) {
        in("Texts::Scroll");
        first_use("Text::Scroll");
        if (small()) return out("Texts::Scroll", "<0");
        if (has(OUTIL_DISABLE)) return out("Texts::Scroll", "OUTIL_DISABLE");
        Sliders* slider = nullptr;
        if (has(TEXTS_CURSOR_H) && Cursor_H.Select(4) == 1)
            slider = &Cursor_H;
        else if (has(TEXTS_CURSOR_V))
            slider = &Cursor_V;
        if (slider) {
            const float before = slider->Cur_Value;
            slider->Scroll(n);
            if (slider->Cur_Value != before) Re_Write();
        }
        out("Texts::Scroll", "");
    }
    int Select(int mode, int dx, int dy) {
        in("Texts::Select");
        first_use("Text::Select");
        if (small()) return out("Texts::Select", "<0", 0);
        mode &= 15;
        const int length = static_cast<int>(std::wcslen(Edit_Line));
        if (Edit_Pos > length) Edit_Pos = length;
        if (has(OUTIL_DISABLE)) {
            if (has(OUTIL_INVISIBLE | OUTIL_EMPTY | GRAPH_OUTLINE))
                return out("Texts::Select", "OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0);
            if (Cursor_V.Wnd) Cursor_V.Deselect();
            Read_Echo(Edit_Line, Edit_Pos);
            return out("Texts::Select", "OUTIL_DISABLE:0", 0);
        }
        for (const DWORD flag : {TEXTS_CURSOR_V, TEXTS_CURSOR_H}) {
            Sliders& slider = flag == TEXTS_CURSOR_V ? Cursor_V : Cursor_H;
            if (!has(flag) || !slider.Select(mode)) continue;
            if (getbutton(4) || getbutton(2) || getbutton(1)) {
                slider.Cur_Value = slider.Read();
                slider.Adjust();
                Re_Write();
            }
            return out("Texts::Select", "1", 1);
        }
        Zeb_setup(Wnd, "Texts::Select");
        int x, y;
        const POINT pointer = read_curs(&x, &y);
        Zeb_release();
        if (!PtInRect(&Region, pointer)) {
            if (select == 2) return out("Texts::Select", "select == 2:0", 0);
            select = 2;
            if (flag_read & 1) Read_Echo(Edit_Line, Edit_Pos);
            return out("Texts::Select", "0", 0);
        }
        if (dx && has(TEXTS_CURSOR_H)) {
            Cursor_H.Cur_Value += static_cast<float>(dx);
            Cursor_H.Adjust();
            Re_Write();
        }
        if (dy && has(TEXTS_CURSOR_V)) {
            Cursor_V.Cur_Value += static_cast<float>(dy);
            Cursor_V.Adjust();
            Re_Write();
        }
        if (select == 1) return out("Texts::Select", "select == 1", 1);
        select = 1;
        if (flag_read & 1) Read_Echo(Edit_Line, Edit_Pos);
        return out("Texts::Select", "1", 1);
    }
    void Deselect() {
        in("Texts::Deselect");
        if (test == 0) return out("Texts::Deselect", "! this->test");
        if (small()) return out("Texts::Deselect", "< 0");
        if (has(OUTIL_INVISIBLE | OUTIL_EMPTY | GRAPH_OUTLINE))
            return out("Texts::Deselect", "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
        if (Cursor_V.Dim_X) Cursor_V.Deselect();
        select = 2;
        if (flag_read & 1) Read_Echo(Edit_Line, Edit_Pos);
        out("Texts::Deselect", "");
    }
    const wchar_t* Read_Line() {
        in("Texts::Read_Line");
        const wchar_t* line = line_under_pointer();
        out("Texts::Read_Line", "");
        return line;
    }
    const wchar_t* line_under_pointer() {
        if (has(OUTIL_INVISIBLE) || !Lines) return nullptr;
        const Rect log = log_area();
        if (log.height < 1) return nullptr;
        Zeb_setup(Wnd, "Texts::Read_Line");
        int x, y;
        const int p = read_curs(&x, &y).y - log.y;
        Zeb_release();
        for (int i = 0; i < 8192; i++) {
            const int bottom = shift_v() + i * Font_Dim_Y;
            if (bottom >= 0 && bottom <= Dim_Y && bottom >= p - Font_Dim_Y && bottom <= p && Lines[i])
                return Lines[i];
        }
        return nullptr;
    }
};

#endif
