"""Small drawings that the pictures need: icons of 16 pixels, and a picture behind the rows of a list."""
import subprocess

# Nothing is smoothed: the colour that is left out would shine through at the edges.
ICONS = {
    "globe": ["-fill", "#2f6fb5", "-draw", "circle 7,7 7,1", "-fill", "#7cc36a", "-draw",
              "polygon 4,4 8,3 9,6 6,8 4,7", "-draw", "polygon 9,9 12,8 11,12 8,12"],
    "house": ["-fill", "#b5482f", "-draw", "polygon 1,8 7,2 13,8", "-fill", "#e8c06a", "-draw",
              "rectangle 3,8 11,13", "-fill", "#6a4a2a", "-draw", "rectangle 6,10 8,13"],
    "people": ["-fill", "#4a4a8a", "-draw", "circle 4,5 4,3", "-draw", "rectangle 2,8 6,13", "-fill", "#8a4a6a",
               "-draw", "circle 10,5 10,3", "-draw", "rectangle 8,8 12,13"],
    "up": ["-fill", "#404040", "-draw", "polygon 3,10 7,5 11,10"],
    "down": ["-fill", "#404040", "-draw", "polygon 3,5 7,10 11,5"],
}
LEAF = ["-size", "300x170", "xc:white", "-fill", "#eaf4e4", "-draw", "path 'M 170,165 C 120,90 190,30 290,10 "
        "C 300,110 250,165 170,165 Z'", "-stroke", "#d4e8c8", "-strokewidth", "3", "-fill", "none", "-draw",
        "path 'M 150,169 C 190,120 230,70 288,14'"]


def windows(path):
    return "Z:" + path.replace("/", "\\")


def draw_icons(folder, names):
    """Files for an image list, by their keys."""
    files = {}
    for name in names:
        path = f"{folder}/{name}.bmp"
        subprocess.run(["convert", "-size", "16x16", "xc:#ff00ff", "+antialias", *ICONS[name], "-type", "truecolor",
                        f"BMP3:{path}"], check=True)
        files[name] = windows(path)
    return files


def draw_leaf(folder):
    path = f"{folder}/leaf.bmp"
    subprocess.run(["convert", *LEAF, "-type", "truecolor", f"BMP3:{path}"], check=True)
    return windows(path)
