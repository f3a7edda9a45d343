"""Prints a DTD of the form that all XML files of a folder share: which elements lie in which, and their attributes."""
import collections
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


class Form:
    """What was seen of one element: how often, its attributes (how often each), the elements and text inside."""

    def __init__(self):
        self.count = 0
        self.attributes = collections.Counter()
        self.children = set()
        self.text = False

    def add(self, element):
        self.count += 1
        self.attributes.update(element.attrib.keys())
        self.children.update(child.tag for child in element)
        inside = [element.text] + [child.tail for child in element]
        self.text = self.text or any(text and text.strip() for text in inside)

    def content(self):
        parts = (["#PCDATA"] if self.text else []) + sorted(self.children)
        return f"({' | '.join(parts)})*" if parts else "EMPTY"

    def attribute_list(self):
        for name, count in sorted(self.attributes.items()):
            yield f"{name} CDATA {'#REQUIRED' if count == self.count else '#IMPLIED'}"


def forms_of(folder):
    forms = collections.defaultdict(Form)
    files = sorted(pathlib.Path(folder).glob("*.xml"))
    if not files:
        sys.exit(f"no XML files in {folder}")
    for file in files:
        for element in ElementTree.parse(file).iter():
            forms[element.tag].add(element)
    return forms


for tag, form in sorted(forms_of(sys.argv[1]).items()):
    print(f"<!ELEMENT {tag} {form.content()}>")
    for attribute in form.attribute_list():
        print(f"<!ATTLIST {tag} {attribute}>")
