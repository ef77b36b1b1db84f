// The commands of the menu "Objekt": each opens the editor of an object and lays out again what its
// OK changes.
#pragma once

#include "design/forms/DesignScreen.h"

namespace quillon {

void EditDesBackground(DesignScreen& screen);
void EditDesTitle(DesignScreen& screen);
void EditDesUnderline(DesignScreen& screen);
void EditDesTextBox(DesignScreen& screen);
void EditDesRTFbox(DesignScreen& screen);
void EditDesPictures(DesignScreen& screen, std::size_t index);
void EditDesPicturesAnim(DesignScreen& screen);
void EditDesLogotype(DesignScreen& screen);
void EditDesPercentGauge(DesignScreen& screen);
void EditDesSound(DesignScreen& screen);
void EditDesOverview(DesignScreen& screen);

/// The picture that the menu's command edits: the first free slot, or the first picture.
std::size_t PictureToEdit(const section::DesPictures& record);

/// Lets a double click on the screen and its objects open the editors.
void ConnectEditors(DesignScreen& screen);

} // namespace quillon
