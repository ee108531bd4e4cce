#pragma once

// The numbers by which controls and windows name a picture, and the vector file behind each.

/// Cards: 1..52 are the faces in card number order, 53 is the back. 71 by 96 pixels at scale 1.
inline constexpr int picCardBack = 53;

inline constexpr int picIcon = 100;
inline constexpr int picTile = 101;  ///< 300 by 300, tiled over the frame's ground.
inline constexpr int picFelt = 102;
inline constexpr int picChip0 = 103;
inline constexpr int picChip1 = 104;
inline constexpr int picChip2 = 105;
inline constexpr int picChip5 = 106;
inline constexpr int picLogo = 107;
inline constexpr int picStart = 108;
inline constexpr int picBullet = 109;
inline constexpr int picHandUp = 110;
inline constexpr int picHandRight = 111;
inline constexpr int picShoe = 112;
inline constexpr int picWelcome = 113;  ///< Over the start screen's ground: 579 by 346.
/// Toolbar images 1..21 stand at picToolbar + 1 to picToolbar + 21; 19 is not used.
inline constexpr int picToolbar = 200;

struct PictureFile {
  int Number;
  const char* File;  ///< Below assets/pictures, without its ending.
};

inline constexpr PictureFile picFiles[] = {
    {picIcon, "icon"},
    {picTile, "tile"},
    {picFelt, "felt"},
    {picChip0, "chip0"},
    {picChip1, "chip1"},
    {picChip2, "chip2"},
    {picChip5, "chip5"},
    {picLogo, "logo"},
    {picStart, "start"},
    {picBullet, "bullet"},
    {picHandUp, "hand_up"},
    {picHandRight, "hand_right"},
    {picShoe, "shoe"},
    {picWelcome, "welcome"},
    {picToolbar + 1, "toolbar/learn"},
    {picToolbar + 2, "toolbar/cardfaceup"},
    {picToolbar + 3, "toolbar/cardvalues"},
    {picToolbar + 4, "toolbar/cardsdealt"},
    {picToolbar + 5, "toolbar/cardsdealtcount"},
    {picToolbar + 6, "toolbar/showscore"},
    {picToolbar + 7, "toolbar/shownaturals"},
    {picToolbar + 8, "toolbar/playerblue"},
    {picToolbar + 9, "toolbar/decks1"},
    {picToolbar + 10, "toolbar/decks2"},
    {picToolbar + 11, "toolbar/decks4"},
    {picToolbar + 12, "toolbar/decks6"},
    {picToolbar + 13, "toolbar/decks8"},
    {picToolbar + 14, "toolbar/delay"},
    {picToolbar + 15, "toolbar/animation"},
    {picToolbar + 16, "toolbar/revealarrows"},
    {picToolbar + 17, "toolbar/revealhands"},
    {picToolbar + 18, "toolbar/statistics"},
    {picToolbar + 20, "toolbar/options"},
    {picToolbar + 21, "toolbar/selectashoe"},
};
