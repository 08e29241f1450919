#!/usr/bin/env python3
"""Prints the benchmark's medians as one row per operation and peer."""
import json
import sys
from collections import OrderedDict

data = json.load(open(sys.argv[1]))
rows = OrderedDict()
for b in data["benchmarks"]:
    if b.get("aggregate_name") != "median":
        continue
    name = b["run_name"]
    if name.endswith("/real_time"):
        name = name[: -len("/real_time")]
    op, case, who = name.rsplit("/", 2)
    rows.setdefault((op, case), {})[who] = b

print(f"{'operation':<20} {'case':<11} {'gex us':>10} {'GB/s':>7}  {'peer':<8} {'peer us':>10} {'GB/s':>7} {'ratio':>6}  agree")
for (op, case), who in rows.items():
    g = who.get("gex")
    if g is None:
        continue
    gt = g["real_time"]
    gbw = g.get("bytes_per_second", 0) / 1e9
    mism = g.get("mismatch")
    agree = "-" if mism is None else ("yes" if mism == 0 else f"NO ({int(mism)} differ)")
    peers = [p for p in who if p != "gex"] or [None]
    for p in peers:
        if p is None:
            print(f"{op:<20} {case:<11} {gt:>10.1f} {gbw:>7.2f}  {'-':<8} {'-':>10} {'-':>7} {'-':>6}  {agree}")
            continue
        pt = who[p]["real_time"]
        # A peer row may carry its own comparison: the largest difference
        # from our output, and a label saying where the methods differ.
        if "maxdiff" in who[p]:
            agree = f"max diff {who[p]['maxdiff']:g}"
            if who[p].get("label"):
                agree += f" ({who[p]['label']})"
        pbw = who[p].get("bytes_per_second", 0) / 1e9
        print(f"{op:<20} {case:<11} {gt:>10.1f} {gbw:>7.2f}  {p:<8} {pt:>10.1f} {pbw:>7.2f} {pt / gt:>6.2f}  {agree}")
