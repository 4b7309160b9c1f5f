# What is said of the game outside it: in menus, software centres, packages, manual pages and by --help.
set(ZARPEL_NAME "Zarpel")
# The game has no site of its own: this name is one of those that are nobody's. Whoever gives it a site puts that here.
set(ZARPEL_SITE "zarpel.example.org")
set(ZARPEL_ID "org.example.zarpel")
set(ZARPEL_MIME_TYPE "application/x-zarpel")
set(ZARPEL_AUTHORS "The Zarpel authors")
set(ZARPEL_RELEASED 1795392000)  # seconds since 1970: 23 November 2026

set(ZARPEL_SUMMARY_EN "Spanish card game for one player against the computer")
set(ZARPEL_SUMMARY_ES "Juego de cartas españolas contra la computadora")
# No line is longer than a package's description may have it.
set(ZARPEL_DESCRIPTION_EN
"A card game on a green table, with the forty cards of the Spanish deck. Take
cards that make fifteen with one of yours; sweep the table and it is a zarpel.
Fifteen points win the match. In Spanish, with mouse or keyboard,
for screen readers too, and with a player's guide.")
set(ZARPEL_DESCRIPTION_ES
"Un juego de cartas sobre una mesa verde, con las cuarenta cartas de la baraja
española. Levante cartas que sumen quince con una de las suyas; deje la mesa
vacía y será un zarpel. Con quince puntos se gana. Con ratón o
teclado, también con lector de pantalla, y con una guía del jugador.")
