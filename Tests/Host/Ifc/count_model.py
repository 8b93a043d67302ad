#!/usr/bin/env python3
"""Counts elements, properties and quantities of IFC models with plain regular expressions, and prints one row of
IfcRealModelTest.cpp for each file: an independent reading to hold the reader against."""

import os
import re
import sys

STRING = r"'(?:[^']|'')*'"
INSTANCE = re.compile(r"#(\d+)\s*=\s*(\w+)\s*\(((?:[^';]|%s)*)\)\s*;" % STRING)
TOKEN = re.compile(r"%s|[(),]|[^'(),]+" % STRING)
PREFIX = dict(EXA=18, PETA=15, TERA=12, GIGA=9, MEGA=6, KILO=3, HECTO=2, DECA=1, DECI=-1, CENTI=-2, MILLI=-3,
              MICRO=-6, NANO=-9, PICO=-12, FEMTO=-15, ATTO=-18)
UNIT_KIND = {".LENGTHUNIT.": ("length", 1), ".AREAUNIT.": ("area", 2), ".VOLUMEUNIT.": ("volume", 3),
             ".PLANEANGLEUNIT.": ("angle", 1)}
MEASURE = dict(IFCLENGTHMEASURE="length", IFCPOSITIVELENGTHMEASURE="length", IFCNONNEGATIVELENGTHMEASURE="length",
               IFCAREAMEASURE="area", IFCVOLUMEMEASURE="volume", IFCPLANEANGLEMEASURE="angle",
               IFCPOSITIVEPLANEANGLEMEASURE="angle", IFCINTEGER="integer", IFCPOSITIVEINTEGER="integer",
               IFCCOUNTMEASURE="integer", IFCTIMESTAMP="integer")
QUANTITY = dict(IFCQUANTITYLENGTH="length", IFCQUANTITYAREA="area", IFCQUANTITYVOLUME="volume",
                IFCQUANTITYCOUNT="integer", IFCQUANTITYWEIGHT="number", IFCQUANTITYTIME="number")
KINDS = ["number", "integer", "length", "area", "volume", "angle", "text", "logical"]


def nested(tokens):
    """Arguments as lists and texts; a typed argument is a pair of its keyword and a list."""
    stack, word = [[]], ""
    for token in tokens + [","]:
        if token == "(":
            stack.append([word.strip()])
            word = ""
        elif token in ",)":
            if word.strip():
                stack[-1].append(word.strip())
            word = ""
            if token == ")":
                done = stack.pop()
                stack[-1].append((done[0], done[1:]) if done[0] else done[1:])
        else:
            word += token
    return stack[0]


class Model:
    def __init__(self, path):
        with open(path, encoding="latin-1", newline="") as file:
            text = file.read()
        # Comments go, texts stay.
        text = re.sub(r"(%s)|/\*.*?\*/" % STRING, lambda match: match.group(1) or " ", text, flags=re.S)
        self.data = {}
        for number, name, arguments in INSTANCE.findall(text):
            self.data.setdefault("#" + number, (name, TOKEN.findall(arguments)))
        self.parsed = {}
        self.factor = self.project_units()

    def name(self, number):
        return self.data.get(number, ("",))[0]

    def arguments(self, number):
        if number not in self.parsed:
            self.parsed[number] = nested(self.data[number][1])
        return self.parsed[number]

    def all_of(self, name):
        return [number for number in self.data if self.name(number) == name]

    def unit(self, number):
        """Kind and factor of a unit, or nothing."""
        if number not in self.data or "UNIT" not in self.name(number):
            return None
        arguments = self.arguments(number)
        kind = UNIT_KIND.get(arguments[1]) if len(arguments) > 1 and isinstance(arguments[1], str) else None
        if kind is None:
            return None
        if self.name(number) == "IFCSIUNIT":
            exponent = 0 if arguments[2] == "$" else PREFIX[arguments[2].strip(".")]
            return kind[0], 10.0 ** (exponent * kind[1])
        value, base = self.arguments(arguments[3])[:2]
        return kind[0], float(value[1][0] if isinstance(value, tuple) else value) * self.unit(base)[1]

    def project_units(self):
        project = self.all_of("IFCPROJECT")[0]
        factors = dict(length=1, area=1, volume=1, angle=1)
        for number in self.arguments(self.arguments(project)[8])[0]:
            unit = self.unit(number)
            if unit:
                factors[unit[0]] = unit[1]
        return factors

    def in_base_units(self, kind, number, own):
        if kind not in self.factor:
            return float(number)
        unit = self.unit(own) if isinstance(own, str) and own.startswith("#") else None
        return float(number) * (unit[1] if unit and unit[0] == kind else self.factor[kind])

    def simple(self, value, own):
        keyword, value = (value[0], value[1][0]) if isinstance(value, tuple) else ("", value)
        if value.startswith("'"):
            return "text", len(decode(value))
        if value in (".T.", ".F.", ".U."):
            return "logical", float(value == ".T.")
        if not re.match(r"[-+.\d]", value) or value.startswith("."):
            return None
        kind = MEASURE.get(keyword, "number")
        return kind, self.in_base_units(kind, value, own)

    def value(self, number):
        """Kind and what counts of a property or quantity, or nothing when it has no value."""
        name, arguments = self.name(number), self.arguments(number)
        if name in QUANTITY:
            return QUANTITY[name], self.in_base_units(QUANTITY[name], arguments[3], arguments[2])
        if name == "IFCPROPERTYSINGLEVALUE":
            return None if arguments[2] == "$" else self.simple(arguments[2], arguments[3])
        if len(arguments[2]) == 1:
            return self.simple(arguments[2][0], "$")
        return "text", len(";".join(decode(item[1][0]) for item in arguments[2]))

    def properties(self, numbers):
        """By set name and name; the first counts."""
        found = {}
        for number in numbers:
            name, arguments = self.name(number), self.arguments(number)
            if name not in ("IFCPROPERTYSET", "IFCELEMENTQUANTITY"):
                continue
            for item in arguments[4 if name == "IFCPROPERTYSET" else 5]:
                if self.name(item) in QUANTITY or self.name(item) in (
                        "IFCPROPERTYSINGLEVALUE", "IFCPROPERTYENUMERATEDVALUE", "IFCPROPERTYLISTVALUE"):
                    found.setdefault((arguments[2], self.arguments(item)[0]), item)
        return found

    def count(self):
        own, types = {}, {}
        for number in self.all_of("IFCRELDEFINESBYPROPERTIES"):
            for item in self.arguments(number)[4]:
                own.setdefault(item, []).append(self.arguments(number)[5])
        for number in self.all_of("IFCRELDEFINESBYTYPE"):
            for item in self.arguments(number)[4]:
                types[item] = self.arguments(number)[5]
        classes = {self.name(item) for item in list(own) + list(types)}
        elements = [item for item in self.data if self.name(item) in classes and self.name(item) != "IFCPROJECT"
                    and len(self.arguments(item)) > 6
                    and all(re.match(r"[#$]", str(self.arguments(item)[i])) for i in (5, 6))]
        counts, sums = dict.fromkeys(KINDS, 0), dict.fromkeys(KINDS, 0.0)
        properties = quantities = 0
        for element in elements:
            of_type = self.arguments(types[element])[5] if element in types else []
            visible = self.properties(own.get(element, []) + (of_type if isinstance(of_type, list) else []))
            quantities += sum(self.name(item) in QUANTITY for item in visible.values())
            properties += len(visible)
            for item in visible.values():
                value = self.value(item)
                if value:
                    counts[value[0]] += 1
                    sums[value[0]] += value[1]
        return len(elements), properties - quantities, quantities, counts, sums


def decode(text):
    text = text[1:-1].replace("''", "'")
    text = re.sub(r"\\X2\\(.*?)\\X0\\", lambda match: bytes.fromhex(match.group(1)).decode("utf-16-be"), text)
    text = re.sub(r"\\S\\(.)", lambda match: chr(ord(match.group(1)) + 128), text)
    text = re.sub(r"\\X\\(..)", lambda match: chr(int(match.group(1), 16)), text)
    return text.replace("\\\\", "\\")


for name in sys.argv[1:]:
    elements, properties, quantities, counts, sums = Model(name).count()
    row = ", ".join(f"{{{counts[kind]}, {sums[kind]!r}}}" for kind in KINDS)
    print(f'      {{"{os.path.basename(name)}", {elements}, {properties}, {quantities}, {{{row}}}}},')
